#pragma once

#include "grid/WidgetCatalog.h"
#include "grid/WidgetContext.h"

#include <QQuickItem>
#include <QtQmlIntegration>

namespace brimlight {

/// Holds the view of one widget, or the back of its tile. The view is made when it is first needed and then
/// lives as long as the host: a new size or a new value of the instance re-lays it and never rebuilds it.
/// What it shows comes from the session of its instance; outside of a tile the host has a session of its own.
class WidgetHost : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::WidgetCatalog *catalog MEMBER m_catalog REQUIRED)
    Q_PROPERTY(QString kind MEMBER m_kind REQUIRED)
    Q_PROPERTY(QString size READ size WRITE setSize NOTIFY sizeChanged)
    Q_PROPERTY(QVariant instance READ instance WRITE setInstance NOTIFY instanceChanged)
    Q_PROPERTY(bool settingsSide MEMBER m_settingsSide FINAL)
    Q_PROPERTY(bool live READ isLive WRITE setLive NOTIFY liveChanged)
    Q_PROPERTY(bool hasView READ hasView NOTIFY hasViewChanged)
    Q_PROPERTY(bool isBroken READ isBroken NOTIFY hasViewChanged)

public:
    explicit WidgetHost(QQuickItem *parent = nullptr);
    ~WidgetHost() override;

    QString size() const { return rawValue(m_size); }
    void setSize(const QString &size);
    QVariant instance() const;
    void setInstance(const QVariant &instance);
    bool isLive() const { return m_live; }
    void setLive(bool live);
    /// False for a kind without a view: the tile then shows a placeholder.
    bool hasView() const { return m_view != nullptr; }
    /// The kind has a view, and it could not be made.
    bool isBroken() const { return m_isBroken; }

Q_SIGNALS:
    void sizeChanged();
    void instanceChanged();
    void liveChanged();
    void hasViewChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    void build();

    WidgetCatalog *m_catalog = nullptr;
    QString m_kind;
    WidgetSize m_size = WidgetSize::small;
    std::optional<WidgetInstance> m_instance;
    bool m_settingsSide = false;
    bool m_live = false;
    bool m_isBroken = false;
    std::shared_ptr<WidgetSession> m_session;
    std::unique_ptr<QQuickItem> m_view;
};

} // namespace brimlight
