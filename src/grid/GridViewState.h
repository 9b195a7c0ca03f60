#pragma once

#include <QObject>
#include <QString>
#include <QUuid>
#include <QtQmlIntegration>

#include <optional>

namespace brimlight {

/// What the grid's views share with the panel they stand in. Every assignment notifies, equal value or not.
class GridViewState : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the panel")
    Q_PROPERTY(bool isDragging READ isDragging WRITE setDragging NOTIFY isDraggingChanged)
    Q_PROPERTY(bool optionsOpen READ optionsOpen WRITE setOptionsOpen NOTIFY optionsOpenChanged)
    Q_PROPERTY(QString flippedWidget READ flippedWidget NOTIFY flippedWidgetIDChanged)

public:
    using QObject::QObject;

    /// A widget is being dragged. Set by the grid view, cleared by the controller.
    bool isDragging() const { return m_isDragging; }
    void setDragging(bool value);
    /// An overlay that owns the panel is open; swipes are ignored. Written by gallery and tile view.
    bool optionsOpen() const { return m_optionsOpen; }
    void setOptionsOpen(bool value);
    /// The widget whose options side is showing; at most one in the whole panel.
    const std::optional<QUuid> &flippedWidgetID() const { return m_flippedWidgetID; }
    void setFlippedWidgetID(const std::optional<QUuid> &value);

    /// The same as text, empty for none.
    QString flippedWidget() const;
    /// Shows the back of this widget, or its front if the back is showing.
    Q_INVOKABLE void toggleFlip(const QString &id);
    Q_INVOKABLE void clearFlip();
    /// Closes every menu and popover and gives up a drag.
    void dismiss() { Q_EMIT dismissed(); }

Q_SIGNALS:
    void isDraggingChanged();
    void optionsOpenChanged();
    void flippedWidgetIDChanged();
    void dismissed();

private:
    bool m_isDragging = false;
    bool m_optionsOpen = false;
    std::optional<QUuid> m_flippedWidgetID;
};

} // namespace brimlight
