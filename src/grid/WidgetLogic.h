#pragma once

#include "grid/WidgetContext.h"

#include <QObject>
#include <QPointer>
#include <QtQmlIntegration>

namespace brimlight {

/// The base of the objects that hold a widget view's rules: what it shows may have changed whenever its
/// context has, on each tick while it can be seen, and when a setting of the user changes.
class WidgetLogic : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("a base")
    Q_PROPERTY(brimlight::WidgetContext *context READ context WRITE setContext NOTIFY contextChanged REQUIRED)

public:
    using QObject::QObject;

    WidgetContext *context() const { return m_context; }
    void setContext(WidgetContext *context);

Q_SIGNALS:
    void contextChanged();
    void changed();

protected:
    /// The date of the last tick.
    QDateTime now() const;
    WidgetSize size() const;

private:
    QPointer<WidgetContext> m_context;
};

} // namespace brimlight
