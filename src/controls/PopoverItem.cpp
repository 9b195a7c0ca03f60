#include "controls/PopoverItem.h"

#include "controls/PopoverLayer.h"
#include "theme/InputModality.h"

#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>

namespace brimlight {
namespace {

/// How far it stays away from the edges of its layer.
constexpr double margin = 4;

bool usesKeys(const QObject &item)
{
    QQmlEngine *engine = qmlEngine(&item);
    const int type = qmlTypeId("Brimlight.Theme", 1, 0, "InputModality");
    const auto *modality = engine ? engine->singletonInstance<InputModality *>(type) : nullptr;
    return !modality || modality->isKeyboard();
}

} // namespace

PopoverItem::PopoverItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setVisible(false);
    setAcceptedMouseButtons(Qt::AllButtons);
}

PopoverItem::~PopoverItem()
{
    // Whoever was told where it stands sees for himself that it goes.
    if (m_layer)
        m_layer->forget(*this);
}

bool PopoverItem::isOpen() const
{
    return m_layer != nullptr;
}

void PopoverItem::setOpen(bool open)
{
    if (open == isOpen())
        return;
    if (!open) {
        close();
        return;
    }
    PopoverLayer *layer = m_anchor ? PopoverLayer::of(*m_anchor) : nullptr;
    if (layer && layer->isActive())
        openIn(*layer);
}

void PopoverItem::setAnchorItem(QQuickItem *item)
{
    if (item == m_anchor)
        return;
    m_anchor = item;
    Q_EMIT anchorItemChanged();
}

void PopoverItem::openAt(const QPointF &point)
{
    setOpen(false);
    m_isAtPoint = true;
    m_point = point;
    setOpen(true);
    m_isAtPoint = isOpen();
}

QRectF PopoverItem::placeBeside(const QRectF &anchor, const QSizeF &size, const QRectF &bounds, double gap,
                                bool alignsRight)
{
    const auto within = [](double wanted, double least, double most) {
        return std::max(least, std::min(wanted, most));
    };
    const double x = alignsRight ? anchor.right() - size.width() : anchor.center().x() - size.width() / 2;
    const double below = bounds.bottom() - anchor.bottom() - gap;
    const double above = anchor.top() - gap - bounds.top();
    const bool isBelow = below >= size.height() || below >= above;
    const double y = isBelow ? anchor.bottom() + gap : anchor.top() - gap - size.height();
    return {{within(x, bounds.left(), bounds.right() - size.width()),
             within(y, bounds.top(), bounds.bottom() - size.height())},
            size};
}

void PopoverItem::componentComplete()
{
    QQuickItem::componentComplete();
    if (!m_anchor)
        setAnchorItem(parentItem());
}

void PopoverItem::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(event->key() == Qt::Key_Escape);
    if (event->isAccepted())
        close();
}

void PopoverItem::mousePressEvent(QMouseEvent *event)
{
    // What misses its controls must not reach the layer, which would close it.
    event->accept();
}

void PopoverItem::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

void PopoverItem::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    if (isOpen() && now.size() != before.size())
        place();
}

void PopoverItem::openIn(PopoverLayer &layer)
{
    m_layer = &layer;
    setParentItem(&layer);
    // Its place on screen is of no more use once the view that it came from goes.
    for (const auto changed : {&QQuickItem::visibleChanged, &QQuickItem::enabledChanged}) {
        connect(m_anchor, changed, this, [this] {
            if (!m_anchor || !m_anchor->isVisible() || !m_anchor->isEnabled())
                close();
        });
    }
    connect(m_anchor, &QObject::destroyed, this, &PopoverItem::close);
    layer.opened(*this);
    setVisible(true);
    ensurePolished();
    place();
    takeFocus();
    Q_EMIT openChanged();
}

void PopoverItem::close()
{
    if (!m_layer)
        return;
    PopoverLayer *layer = m_layer;
    if (m_anchor)
        m_anchor->disconnect(this);
    // The focus leaves before its place goes.
    if (holdsFocus()) {
        QQuickItem *next =
            usesKeys(*this) && m_anchor && m_anchor->isVisible() ? m_anchor.data() : layer->rest();
        next->forceActiveFocus(Qt::TabFocusReason);
    }
    m_layer = nullptr;
    m_isAtPoint = false;
    setVisible(false);
    layer->closed(*this);
    Q_EMIT openChanged();
}

void PopoverItem::place()
{
    if (!m_layer || !m_anchor)
        return;
    const QRectF own =
        m_isAtPoint ? QRectF(m_point, QSizeF()) : QRectF(0, 0, m_anchor->width(), m_anchor->height());
    const QRectF beside = m_anchor->mapRectToItem(m_layer, own);
    const QRectF bounds =
        QRectF(0, 0, m_layer->width(), m_layer->height()).adjusted(margin, margin, -margin, -margin);
    const QRectF frame = placeBeside(beside, size(), bounds, m_isAtPoint ? 0 : m_gap, m_alignsRight);
    setPosition(frame.topLeft());
    Q_EMIT m_layer->placed(this, frame);
}

void PopoverItem::takeFocus()
{
    // With the pointer nothing is marked, but keys belong here.
    (m_firstItem ? m_firstItem.data() : this)->forceActiveFocus(Qt::TabFocusReason);
    if (!m_firstItem && usesKeys(*this))
        Q_EMIT entered();
}

bool PopoverItem::holdsFocus() const
{
    const QQuickItem *item = window() ? window()->activeFocusItem() : nullptr;
    return item && (item == this || isAncestorOf(item));
}

} // namespace brimlight
