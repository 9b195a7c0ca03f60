#pragma once

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace brimlight::test {

/// What a person finds in a window, and does there.
class Scene
{
public:
    explicit Scene(QQuickWindow &window)
        : m_window(window)
    {
    }

    /// All items that can be seen, parents before children.
    QList<QQuickItem *> items() const
    {
        QList<QQuickItem *> found;
        collect(*m_window.contentItem(), found);
        return found;
    }
    /// Those of a QML file.
    QList<QQuickItem *> ofType(const char *name) const
    {
        QList<QQuickItem *> found = items();
        found.removeIf([prefix = QByteArray(name) + "_QML"](const QQuickItem *item) {
            return !QByteArray(item->metaObject()->className()).startsWith(prefix);
        });
        return found;
    }
    /// Those that accessibility calls so.
    QList<QQuickItem *> withRole(QAccessible::Role role) const
    {
        QList<QQuickItem *> found = items();
        found.removeIf([role](QQuickItem *item) {
            const QAccessibleInterface *known = QAccessible::queryAccessibleInterface(item);
            return !known || known->role() != role;
        });
        return found;
    }
    QStringList namesOf(QAccessible::Role role) const
    {
        QStringList names;
        for (QQuickItem *item : withRole(role))
            names.append(nameOf(*item));
        return names;
    }
    /// Null when no such button can be seen.
    QQuickItem *button(const QString &name) const
    {
        for (QQuickItem *item : withRole(QAccessible::Button)) {
            if (nameOf(*item) == name)
                return item;
        }
        return nullptr;
    }
    /// Everything that is written there.
    QStringList texts() const
    {
        QStringList found;
        for (const QQuickItem *item : items()) {
            if (item->inherits("QQuickText") && !item->property("text").toString().isEmpty())
                found.append(item->property("text").toString());
        }
        return found;
    }

    void click(const QPointF &point) const
    {
        QTest::mouseClick(&m_window, Qt::LeftButton, {}, point.toPoint());
    }
    void click(const QQuickItem &item) const { click(middle(item)); }
    void moveTo(const QPointF &point) const { QTest::mouseMove(&m_window, point.toPoint()); }

    static QRectF frameOf(const QQuickItem &item)
    {
        return item.mapRectToScene({0, 0, item.width(), item.height()});
    }
    static QPointF middle(const QQuickItem &item) { return frameOf(item).center(); }

private:
    static QString nameOf(QQuickItem &item)
    {
        return QAccessible::queryAccessibleInterface(&item)->text(QAccessible::Name);
    }
    static void collect(QQuickItem &item, QList<QQuickItem *> &found)
    {
        if (!item.isVisible() || item.opacity() == 0)
            return;
        found.append(&item);
        for (QQuickItem *child : item.childItems())
            collect(*child, found);
    }

    QQuickWindow &m_window;
};

} // namespace brimlight::test
