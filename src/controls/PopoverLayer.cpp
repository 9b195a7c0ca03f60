#include "controls/PopoverLayer.h"

#include "controls/PopoverItem.h"

namespace brimlight {

PopoverLayer::PopoverLayer(QQuickItem *parent)
    : QQuickItem(parent)
{
}

PopoverLayer *PopoverLayer::of(const QQuickItem &item)
{
    for (const QQuickItem *at = &item; at; at = at->parentItem()) {
        const QList<QQuickItem *> siblings =
            at->parentItem() ? at->parentItem()->childItems() : QList<QQuickItem *>();
        for (QQuickItem *sibling : siblings) {
            if (auto *layer = qobject_cast<PopoverLayer *>(sibling))
                return layer;
        }
    }
    return nullptr;
}

void PopoverLayer::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    if (!m_active)
        closeAll();
    Q_EMIT activeChanged();
}

void PopoverLayer::closeAll()
{
    while (!m_open.isEmpty())
        m_open.constLast()->setOpen(false);
}

void PopoverLayer::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (!m_open.isEmpty())
        m_open.constLast()->setOpen(false);
}

void PopoverLayer::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(isOpen());
}

void PopoverLayer::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    for (PopoverItem *popover : std::as_const(m_open))
        popover->place();
}

void PopoverLayer::opened(PopoverItem &popover)
{
    m_open.append(&popover);
    popover.setZ(static_cast<double>(m_open.size()));
    setAcceptedMouseButtons(Qt::AllButtons);
    Q_EMIT openChanged();
}

void PopoverLayer::closed(PopoverItem &popover)
{
    Q_EMIT placed(&popover, {});
    forget(popover);
}

void PopoverLayer::forget(PopoverItem &popover)
{
    m_open.removeOne(&popover);
    if (m_open.isEmpty())
        setAcceptedMouseButtons(Qt::NoButton);
    Q_EMIT openChanged();
}

} // namespace brimlight
