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
    /// On each tick while the view can be seen, before `changed`.
    virtual void tick() {}
    /// Each time the view can be seen again, before `changed`.
    virtual void appear() {}

    /// The date of the last tick.
    QDateTime now() const;
    WidgetSize size() const;
    /// The stored option of the instance; absent when there is none.
    std::optional<QString> option(const QString &key) const;
    Theme theme() const;
    bool isCelsius() const;

private:
    QPointer<WidgetContext> m_context;
};

} // namespace brimlight
