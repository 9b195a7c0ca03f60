#include "grid/GridViewState.h"

namespace brimlight {

void GridViewState::setDragging(bool value)
{
    m_isDragging = value;
    Q_EMIT isDraggingChanged();
}

void GridViewState::setOptionsOpen(bool value)
{
    m_optionsOpen = value;
    Q_EMIT optionsOpenChanged();
}

void GridViewState::setFlippedWidgetID(const std::optional<QUuid> &value)
{
    const bool wasFlipped = m_flippedWidgetID.has_value();
    m_flippedWidgetID = value;
    Q_EMIT flippedWidgetIDChanged();
    if (wasFlipped != value.has_value())
        setOptionsOpen(value.has_value());
}

QString GridViewState::flippedWidget() const
{
    return m_flippedWidgetID ? m_flippedWidgetID->toString(QUuid::WithoutBraces) : QString();
}

void GridViewState::toggleFlip(const QString &id)
{
    const QUuid uuid = QUuid::fromString(id);
    setFlippedWidgetID(m_flippedWidgetID == uuid ? std::nullopt : std::optional(uuid));
}

void GridViewState::clearFlip()
{
    setFlippedWidgetID(std::nullopt);
}

} // namespace brimlight
