#include "notch/ScrollableContent.h"

#include <QPointingDevice>
#include <QWheelEvent>

#include <algorithm>

namespace brimlight {
namespace {

ScrollAxes axesOf(const QQuickItem &item)
{
    if (!item.inherits("QQuickFlickable"))
        return {};
    if (!item.property("interactive").toBool() && !item.property("scrollsByWheel").toBool())
        return {};
    constexpr double least = 1;
    return {.horizontal = item.property("contentWidth").toDouble() >= item.width() + least,
            .vertical = item.property("contentHeight").toDouble() >= item.height() + least};
}

/// Moves one axis by `distance` as far as the content reaches.
void move(QObject &flickable, const char *position, const char *origin, double extent, double distance)
{
    const double first = flickable.property(origin).toDouble();
    const double last = first + std::max(0.0, extent);
    flickable.setProperty(position,
                          std::clamp(flickable.property(position).toDouble() - distance, first, last));
}

} // namespace

ScrollAxes ScrollableContent::listenAt(const QPointF &position)
{
    for (const QPointer<QQuickItem> &item : std::as_const(m_found)) {
        if (item)
            item->removeEventFilter(this);
    }
    m_found.clear();
    ScrollAxes axes;
    find(m_root, position, axes);
    return axes;
}

void ScrollableContent::find(QQuickItem &item, const QPointF &position, ScrollAxes &axes)
{
    if (!item.isVisible() || !item.isEnabled())
        return;
    const bool isHere = item.contains(item.mapFromScene(position));
    if (item.clip() && !isHere)
        return;
    const ScrollAxes own = isHere ? axesOf(item) : ScrollAxes{};
    if (own != ScrollAxes{}) {
        axes = {.horizontal = axes.horizontal || own.horizontal, .vertical = axes.vertical || own.vertical};
        item.installEventFilter(this);
        m_found.append(&item);
    }
    const QList<QQuickItem *> children = item.childItems();
    for (QQuickItem *child : children)
        find(*child, position, axes);
}

bool ScrollableContent::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    const auto &wheel = static_cast<const QWheelEvent &>(*event);
    if (wheel.pointingDevice()->type() != QInputDevice::DeviceType::TouchPad ||
        wheel.phase() == Qt::NoScrollPhase)
        return QObject::eventFilter(watched, event);
    const auto &item = static_cast<QQuickItem &>(*watched);
    const ScrollAxes axes = axesOf(item);
    const auto extent = [&](const char *content, double shown) {
        return item.property(content).toDouble() - shown;
    };
    if (axes.horizontal)
        move(*watched, "contentX", "originX", extent("contentWidth", item.width()), wheel.pixelDelta().x());
    if (axes.vertical)
        move(*watched, "contentY", "originY", extent("contentHeight", item.height()), wheel.pixelDelta().y());
    event->accept();
    return true;
}

} // namespace brimlight
