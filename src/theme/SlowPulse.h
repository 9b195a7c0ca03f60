#pragma once

#include <QObject>
#include <QPauseAnimation>
#include <QtQmlIntegration>

#include <chrono>

namespace brimlight {

/// A number that goes from 0 to 1 and back for as long as it runs, for what swells by a few points in
/// seconds. It takes ten steps a second, each less than the eye resolves there, and Qt sleeps between them:
/// an animation of Qt Quick would draw sixty frames a second for the same picture.
class SlowPulse : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)

public:
    static constexpr std::chrono::milliseconds step{100};
    /// From 0 to 1, and as long back.
    static constexpr std::chrono::milliseconds half{2000};

    explicit SlowPulse(QObject *parent = nullptr);

    bool isRunning() const { return m_beat.state() == QAbstractAnimation::Running; }
    /// Begins at 0; at rest the value is 0.
    void setRunning(bool running);
    double value() const { return m_value; }

Q_SIGNALS:
    void runningChanged();
    void valueChanged();

private:
    void setValue(double value);

    QPauseAnimation m_beat;
    double m_value = 0;
};

} // namespace brimlight
