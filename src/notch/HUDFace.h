#pragma once

#include "notch/HUDLevel.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

class NotchViewModel;

/// What the heads-up display shows, and whether. It keeps the last value while the display fades away.
class HUDFace : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(bool isShown READ isShown NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString percent READ percent NOTIFY changed)
    Q_PROPERTY(double level READ level NOTIFY changed)

public:
    explicit HUDFace(const NotchViewModel &viewModel, QObject *parent = nullptr);

    /// Only a collapsed panel shows it.
    bool isShown() const;
    QString symbol() const { return hudlevel::symbol(m_type); }
    QString percent() const { return hudlevel::percent(m_type.level); }
    double level() const { return m_type.level; }
    Q_INVOKABLE static double barWidth(double level, double trackWidth)
    {
        return hudlevel::barWidth(level, trackWidth);
    }

Q_SIGNALS:
    void changed();

private:
    void take();

    const NotchViewModel &m_viewModel;
    HUDType m_type;
};

} // namespace brimlight
