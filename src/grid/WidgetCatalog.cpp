#include "grid/WidgetCatalog.h"

#include "core/EnumTexts.h"
#include "grid/GridMetrics.h"
#include "grid/GridStore.h"
#include "grid/WidgetRegistry.h"

#include <QQmlComponent>

#include <algorithm>

namespace brimlight {
namespace {

constexpr EnumTexts<WidgetSize, 7> names{{{{WidgetSize::small, u"Small"},
                                           {WidgetSize::tall, u"Tall"},
                                           {WidgetSize::wide, u"Wide"},
                                           {WidgetSize::large, u"Large"},
                                           {WidgetSize::banner, u"Banner"},
                                           {WidgetSize::wideTall, u"Big"},
                                           {WidgetSize::huge, u"Huge"}}}};
static_assert(names.covers(allWidgetSizes));

} // namespace

QString sizeText(WidgetSize size)
{
    return QStringLiteral("%1×%2").arg(columnSpan(size)).arg(rowSpan(size));
}

QString sizeLabel(WidgetSize size)
{
    return QStringLiteral("%1 (%2)").arg(names.text(size), sizeText(size));
}

GalleryEntry galleryEntry(const WidgetMetadata &metadata)
{
    const auto &allowed = metadata.allowedSizes;
    const bool hasWide = std::find(allowed.begin(), allowed.end(), WidgetSize::wide) != allowed.end();
    const WidgetSize preview = hasWide ? WidgetSize::wide : metadata.defaultSize;
    QStringList sizes;
    for (const WidgetSize size : allowed)
        sizes.append(sizeText(size));
    return {.kind = metadata.kind,
            .name = metadata.displayName,
            .symbol = metadata.symbol,
            .sizes = sizes.join(QStringLiteral(" · ")),
            .chip = sizeText(metadata.defaultSize),
            .previewSize = rawValue(preview),
            .naturalSize = gridMetrics::rectangle(preview)};
}

WidgetCatalog::WidgetCatalog(const WidgetEnvironment &environment, QObject *parent)
    : QObject(parent)
    , m_environment(environment)
    , m_sessions(environment)
{
}

WidgetCatalog::~WidgetCatalog() = default;

QVariantList WidgetCatalog::gallery() const
{
    QVariantList entries;
    for (const WidgetDefinition &definition : m_environment.registry.all())
        entries.append(QVariant::fromValue(galleryEntry(definition.metadata)));
    return entries;
}

bool WidgetCatalog::hasSettings(const QString &kind) const
{
    const WidgetDefinition *definition = m_environment.registry.definition(kind);
    return definition && definition->metadata.hasSettings;
}

QVariantList WidgetCatalog::sizes(const QString &kind) const
{
    QVariantList entries;
    if (const WidgetDefinition *definition = m_environment.registry.definition(kind)) {
        for (const WidgetSize size : definition->metadata.allowedSizes)
            entries.append(QVariant::fromValue(SizeEntry{.size = rawValue(size), .label = sizeLabel(size)}));
    }
    return entries;
}

QString WidgetCatalog::displayName(const QString &kind) const
{
    const WidgetDefinition *definition = m_environment.registry.definition(kind);
    return definition ? definition->metadata.displayName : kind;
}

QString WidgetCatalog::sizeOf(const QString &id) const
{
    const auto size = m_environment.grid.size(QUuid::fromString(id));
    return size ? rawValue(*size) : QString();
}

void WidgetCatalog::setSize(const QString &id, const QString &size)
{
    if (const auto parsed = widgetSizeFromRawValue(size))
        m_environment.grid.setSize(QUuid::fromString(id), *parsed);
}

void WidgetCatalog::remove(const QString &id)
{
    m_environment.grid.remove(QUuid::fromString(id));
}

bool WidgetCatalog::move(const QString &id, int key)
{
    const auto step = [&](int cols, int rows) {
        return m_environment.grid.shift(QUuid::fromString(id), cols, rows);
    };
    switch (key) {
    case Qt::Key_Left:
        return step(-1, 0);
    case Qt::Key_Right:
        return step(1, 0);
    case Qt::Key_Up:
        return step(0, -1);
    case Qt::Key_Down:
        return step(0, 1);
    default:
        return false;
    }
}

QQmlComponent &WidgetCatalog::component(QQmlEngine &engine, const QUrl &url)
{
    auto &component = m_components[url.toString()];
    if (!component)
        component = std::make_unique<QQmlComponent>(&engine, url);
    return *component;
}

} // namespace brimlight
