#include "grid/WidgetHost.h"

#include "grid/WidgetLogic.h"
#include "grid/WidgetRegistry.h"

#include <QQmlComponent>
#include <QQmlEngine>

namespace brimlight {

WidgetHost::WidgetHost(QQuickItem *parent)
    : QQuickItem(parent)
{
}

WidgetHost::~WidgetHost()
{
    // The view reads its session to the last.
    m_view.reset();
    if (m_session)
        m_session->setSeen(*this, false);
}

void WidgetHost::setSize(const QString &size)
{
    m_size = widgetSizeFromRawValue(size).value_or(WidgetSize::small);
    if (m_session)
        m_session->context().setSize(m_size);
    Q_EMIT sizeChanged();
}

QVariant WidgetHost::instance() const
{
    return m_instance ? QVariant::fromValue(*m_instance) : QVariant();
}

void WidgetHost::setInstance(const QVariant &instance)
{
    m_instance = instance.canConvert<WidgetInstance>() ? std::optional(instance.value<WidgetInstance>())
                                                       : std::nullopt;
    if (m_instance)
        m_size = m_instance->size;
    if (m_session)
        m_session->context().setInstance(m_instance);
    Q_EMIT instanceChanged();
}

void WidgetHost::setLive(bool live)
{
    m_live = live;
    if (m_session)
        m_session->setSeen(*this, live);
    else if (live && isComponentComplete())
        build();
    Q_EMIT liveChanged();
}

void WidgetHost::componentComplete()
{
    QQuickItem::componentComplete();
    if (m_live)
        build();
}

void WidgetHost::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (m_view)
        m_view->setSize(newGeometry.size());
}

void WidgetHost::build()
{
    const WidgetEnvironment &environment = m_catalog->environment();
    const WidgetDefinition *definition = environment.registry.definition(m_kind);
    const QUrl url = definition ? (m_settingsSide ? definition->settingsView : definition->view) : QUrl();
    QQmlEngine *engine = qmlEngine(this);
    if (url.isEmpty() || !engine)
        return;
    m_session = m_instance ? m_catalog->sessions().session(*m_instance, *definition)
                           : std::make_shared<WidgetSession>(environment, *definition, std::nullopt, m_size);
    m_session->setSeen(*this, m_live);
    QVariantMap properties{{QStringLiteral("context"), QVariant::fromValue(&m_session->context())}};
    if (m_session->logic())
        properties.insert(QStringLiteral("face"), QVariant::fromValue(m_session->logic()));
    QQmlComponent &component = m_catalog->component(*engine, url);
    // Qt 6.4 does not survive the creation of what it could not load.
    QObject *made =
        component.isReady() ? component.createWithInitialProperties(properties, qmlContext(this)) : nullptr;
    m_view.reset(qobject_cast<QQuickItem *>(made));
    if (!m_view) {
        qWarning("widget view %s: %s", qPrintable(url.toString()), qPrintable(component.errorString()));
        delete made;
        m_isBroken = true;
        Q_EMIT hasViewChanged();
        return;
    }
    m_view->setParentItem(this);
    const auto follow = [this] { setImplicitSize(m_view->implicitWidth(), m_view->implicitHeight()); };
    connect(m_view.get(), &QQuickItem::implicitHeightChanged, this, follow);
    connect(m_view.get(), &QQuickItem::implicitWidthChanged, this, follow);
    follow();
    m_view->setSize({width(), height()});
    Q_EMIT hasViewChanged();
}

} // namespace brimlight
