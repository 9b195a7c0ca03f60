#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace brimlight {

/// Has what its component describes as long as it is active. It stands for Loader, which in Qt 6.4 refuses a
/// component that is bound to its file: it would make it in a context of its own. Like that one it gives its
/// size to the item where it has one, else takes the item's, and is a focus scope.
class LazyItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    Q_PROPERTY(QQmlComponent *sourceComponent READ sourceComponent WRITE setSourceComponent NOTIFY
                   sourceComponentChanged)
    Q_PROPERTY(QQuickItem *item READ item NOTIFY itemChanged)

public:
    explicit LazyItem(QQuickItem *parent = nullptr);
    ~LazyItem() override;

    /// True at first. False takes the item away.
    bool isActive() const { return m_active; }
    void setActive(bool active);
    /// Another one makes another item.
    QQmlComponent *sourceComponent() const { return m_component; }
    void setSourceComponent(QQmlComponent *component);
    /// Null while there is none.
    QQuickItem *item() const { return m_item; }

Q_SIGNALS:
    void activeChanged();
    void sourceComponentChanged();
    void itemChanged();
    /// The item has been made.
    void loaded();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &now, const QRectF &before) override;

private:
    void refresh();
    void make();
    void clear();
    void giveSize();
    void takeSize();

    QPointer<QQmlComponent> m_component;
    QPointer<QQuickItem> m_item;
    bool m_active = true;
};

} // namespace brimlight
