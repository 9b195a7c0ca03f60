#pragma once

#include "platform/OverlaySurface.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QQuickItem>

class QWheelEvent;

namespace brimlight {

/// What two fingers on a touchpad scroll: a Flickable whose content is larger than itself and that is
/// `interactive` or says `scrollsByWheel`. It moves with the fingers, point by point. By itself a Flickable
/// would leave out the first events of each gesture and, past its end, wait until the fingers have come all
/// the way back.
class ScrollableContent : public QObject
{
public:
    explicit ScrollableContent(QQuickItem &root)
        : m_root(root)
    {
    }

    /// In which directions anything under a point of the scene can be scrolled. Looked for where Qt would
    /// deliver a wheel event, so what is hidden, disabled or clipped away does not count. What is found is
    /// moved by the touchpad events that reach it, until the next call.
    ScrollAxes listenAt(const QPointF &position);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void find(QQuickItem &item, const QPointF &position, ScrollAxes &axes);

    QQuickItem &m_root;
    QList<QPointer<QQuickItem>> m_found;
};

} // namespace brimlight
