#pragma once

#include <QColor>
#include <QDateTime>
#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace brimlight {

/// The angles of a clock's hands in degrees, clockwise from the top.
struct ClockHands
{
    double hour = 0;
    double minute = 0;
    double second = 0;

    bool operator==(const ClockHands &) const = default;

    static ClockHands at(QTime time);
};

/// The dial, ticks and hands of an analog clock, in the largest centred square.
class AnalogClockFace : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QDateTime now READ now WRITE setNow NOTIFY changed)
    Q_PROPERTY(QColor primary MEMBER m_primary NOTIFY changed)
    Q_PROPERTY(QColor secondary MEMBER m_secondary NOTIFY changed)
    Q_PROPERTY(QColor accent MEMBER m_accent NOTIFY changed)

public:
    explicit AnalogClockFace(QQuickItem *parent = nullptr);

    QDateTime now() const { return m_now; }
    void setNow(const QDateTime &now);
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    QDateTime m_now;
    QColor m_primary;
    QColor m_secondary;
    QColor m_accent;
};

} // namespace brimlight
