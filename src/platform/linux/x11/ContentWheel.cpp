#include "platform/linux/x11/ContentWheel.h"

#include "platform/linux/x11/TouchpadScroll.h"

#include <QGuiApplication>
#include <QWheelEvent>
#include <QWindow>

namespace brimlight {

ContentWheel::ContentWheel(QWindow &window)
    : m_window(window)
    , m_device(QStringLiteral("touchpad"), 0, QInputDevice::DeviceType::TouchPad,
               QPointingDevice::PointerType::Generic,
               QInputDevice::Capability::Position | QInputDevice::Capability::Scroll |
                   QInputDevice::Capability::PixelScroll,
               1, 3)
{
}

void ContentWheel::deliver(const ScrollEvent &event)
{
    m_position = {event.position.x, event.position.y};
    if (event.phase == ScrollEvent::Phase::ended || event.phase == ScrollEvent::Phase::cancelled) {
        if (m_isUnderWay)
            send({}, Qt::ScrollEnd);
        m_isUnderWay = false;
        return;
    }
    if (!m_isUnderWay)
        m_rest = {};
    m_rest += QPointF(event.deltaX, event.deltaY);
    const QPoint points(static_cast<int>(m_rest.x()), static_cast<int>(m_rest.y()));
    m_rest -= points;
    if (!m_isUnderWay)
        send(points, Qt::ScrollBegin);
    else if (!points.isNull())
        send(points, Qt::ScrollUpdate);
    m_isUnderWay = true;
}

void ContentWheel::send(QPoint points, Qt::ScrollPhase phase)
{
    // An eighth of a degree each, 15 degrees a click.
    constexpr int unitsPerClick = 120;
    constexpr int unitsPerPoint = unitsPerClick / static_cast<int>(pointsPerClick);
    QWheelEvent event(m_position, m_window.mapToGlobal(m_position), points, points * unitsPerPoint,
                      Qt::NoButton, QGuiApplication::keyboardModifiers(), phase, false,
                      Qt::MouseEventSynthesizedBySystem, &m_device);
    QCoreApplication::sendEvent(&m_window, &event);
}

} // namespace brimlight
