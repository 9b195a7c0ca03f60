#include "controls/LazyItem.h"

#include <QQmlEngine>
#include <QQmlInfo>

namespace brimlight {

LazyItem::LazyItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

LazyItem::~LazyItem()
{
    delete m_item;
}

void LazyItem::setActive(bool active)
{
    if (active == m_active)
        return;
    m_active = active;
    refresh();
    Q_EMIT activeChanged();
}

void LazyItem::setSourceComponent(QQmlComponent *component)
{
    if (component == m_component)
        return;
    clear();
    m_component = component;
    refresh();
    Q_EMIT sourceComponentChanged();
}

void LazyItem::componentComplete()
{
    QQuickItem::componentComplete();
    refresh();
}

void LazyItem::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    giveSize();
}

void LazyItem::refresh()
{
    if (!isComponentComplete())
        return;
    if (!m_active || !m_component)
        clear();
    else if (!m_item)
        make();
}

void LazyItem::make()
{
    QObject *made = m_component->beginCreate(m_component->creationContext());
    m_item = qobject_cast<QQuickItem *>(made);
    if (!m_item) {
        delete made;
        qmlWarning(this, m_component->errors());
        return;
    }
    // Qt must not collect it as garbage.
    m_item->setParent(this);
    m_item->setParentItem(this);
    giveSize();
    m_component->completeCreate();
    if (!m_item)
        return;
    for (const auto changed : {&QQuickItem::widthChanged, &QQuickItem::heightChanged,
                               &QQuickItem::implicitWidthChanged, &QQuickItem::implicitHeightChanged})
        connect(m_item, changed, this, &LazyItem::takeSize);
    giveSize();
    takeSize();
    Q_EMIT itemChanged();
    Q_EMIT loaded();
}

void LazyItem::clear()
{
    if (!m_item)
        return;
    // What goes may be what has just been clicked.
    QQuickItem *going = m_item;
    m_item = nullptr;
    going->disconnect(this);
    going->setVisible(false);
    going->setParentItem(nullptr);
    going->deleteLater();
    setImplicitSize(0, 0);
    Q_EMIT itemChanged();
}

void LazyItem::giveSize()
{
    if (m_item && widthValid())
        m_item->setWidth(width());
    if (m_item && heightValid())
        m_item->setHeight(height());
}

void LazyItem::takeSize()
{
    if (m_item)
        setImplicitSize(widthValid() ? m_item->implicitWidth() : m_item->width(),
                        heightValid() ? m_item->implicitHeight() : m_item->height());
}

} // namespace brimlight
