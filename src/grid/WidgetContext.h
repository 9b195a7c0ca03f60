#pragma once

#include "core/AppSettings.h"
#include "core/TickCoordinator.h"
#include "grid/GridLayout.h"
#include "theme/ThemeStore.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

struct WidgetEnvironment;

/// What one widget view knows of its place: its size, its instance's options, and whether anybody sees it.
/// Outside of a tile (gallery preview, rendering) there is no instance and every option has its default.
class WidgetContext : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the host of a view")
    Q_PROPERTY(QString size READ sizeName NOTIFY sizeChanged)
    Q_PROPERTY(bool live READ isLive NOTIFY liveChanged)
    Q_PROPERTY(brimlight::ThemeStore *theme READ theme CONSTANT)
    Q_PROPERTY(brimlight::AppSettings *settings READ settings CONSTANT)
    Q_PROPERTY(brimlight::TickCoordinator *ticker READ ticker CONSTANT)

public:
    explicit WidgetContext(const WidgetEnvironment &environment, QObject *parent = nullptr);

    WidgetSize size() const { return m_size; }
    /// The case name of the size: "small", "wide" ...
    QString sizeName() const { return rawValue(m_size); }
    void setSize(WidgetSize size);

    /// The view can be seen: panel open, page current. Animations and clocks of a view run only then.
    bool isLive() const { return m_isLive; }
    void setLive(bool live);

    const std::optional<WidgetInstance> &instance() const { return m_instance; }
    void setInstance(const std::optional<WidgetInstance> &instance);
    /// The stored option; absent when there is none or no instance.
    std::optional<QString> option(const QString &key) const;
    /// Writes an option of the instance into the layout; nothing without an instance.
    Q_INVOKABLE void setOption(const QString &key, const QString &value);

    ThemeStore *theme() const;
    AppSettings *settings() const;
    TickCoordinator *ticker() const;

Q_SIGNALS:
    void sizeChanged();
    void liveChanged();
    void optionsChanged();

private:
    const WidgetEnvironment &m_environment;
    WidgetSize m_size = WidgetSize::small;
    bool m_isLive = false;
    std::optional<WidgetInstance> m_instance;
};

} // namespace brimlight
