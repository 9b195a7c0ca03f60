#pragma once

#include "grid/WidgetContext.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// The base of the objects that hold a widget's rules: one an instance, shared by the front and the back of
/// its tile. What it shows may have changed whenever its context has, on each tick while it can be seen, and
/// when a setting of the user changes.
class WidgetLogic : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the definition of its kind")

public:
    /// The context outlives its logic. `appear` is called when it first becomes live, never from here.
    explicit WidgetLogic(WidgetContext &context);

Q_SIGNALS:
    void changed();

protected:
    /// On each tick while the widget can be seen, before `changed`.
    virtual void tick() {}
    /// Each time the widget can be seen again, before `changed`.
    virtual void appear() {}

    const WidgetContext &context() const { return m_context; }
    WidgetContext &context() { return m_context; }
    /// The date of the last tick.
    QDateTime now() const { return m_context.ticker()->now(); }
    WidgetSize size() const { return m_context.size(); }
    /// The stored option of the instance; absent when there is none.
    std::optional<QString> option(const QString &key) const { return m_context.option(key); }
    Theme theme() const { return m_context.theme()->current(); }
    const AppSettings &settings() const { return *m_context.settings(); }

private:
    WidgetContext &m_context;
};

} // namespace brimlight
