#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace brimlight {

class PopoverItem;

/// Where menus and popovers stand: above everything else of a view tree, within its surface. While one is
/// open a click beside it closes it and goes no further, and the wheel moves nothing below.
class PopoverLayer : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isOpen READ isOpen NOTIFY openChanged)
    Q_PROPERTY(QQuickItem *rest MEMBER m_rest NOTIFY restChanged)
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)

public:
    explicit PopoverLayer(QQuickItem *parent = nullptr);

    /// The one that an item's popovers belong to: the nearest among the siblings of the item and of those
    /// that it is in. Null where nothing can open, as in a picture.
    static PopoverLayer *of(const QQuickItem &item);

    bool isOpen() const { return !m_open.isEmpty(); }
    /// False closes all and lets none open; true at first.
    bool isActive() const { return m_active; }
    void setActive(bool active);
    Q_INVOKABLE void closeAll();

Q_SIGNALS:
    void openChanged();
    void restChanged();
    void activeChanged();
    /// Where a popover stands in this layer now; empty when it has closed. The surface has to let the pointer
    /// through to it there.
    void placed(QObject *popover, const QRectF &frame);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;

private:
    friend class PopoverItem;

    void opened(PopoverItem &popover);
    void closed(PopoverItem &popover);
    void forget(PopoverItem &popover);
    /// What gets the focus when a popover that was used with the pointer closes.
    QQuickItem *rest() { return m_rest ? m_rest.data() : this; }

    QList<PopoverItem *> m_open;
    QPointer<QQuickItem> m_rest;
    bool m_active = true;
};

} // namespace brimlight
