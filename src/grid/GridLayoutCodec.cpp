#include "grid/GridLayoutCodec.h"

#include "core/JsonReader.h"
#include "core/JsonWriter.h"

#include <algorithm>

namespace brimlight {
namespace {

void write(JsonWriter &json, const WidgetInstance &instance)
{
    json.beginObject();
    json.member("id", instance.id);
    json.member("kind", instance.kind);
    json.member("size", rawValue(instance.size));
    json.member("order", instance.order);
    json.member("page", instance.page);
    json.member("col", instance.col);
    json.member("row", instance.row);
    if (instance.settings) {
        json.key("settings");
        json.beginObject();
        for (auto it = instance.settings->cbegin(); it != instance.settings->cend(); ++it)
            json.member(it.key(), it.value());
        json.endObject();
    }
    json.endObject();
}

std::optional<WidgetInstance> decodeInstance(const QJsonValue &value)
{
    JsonReader json(value);
    const auto size = widgetSizeFromRawValue(json.text("size"));
    if (!size)
        return std::nullopt;
    WidgetInstance instance{.id = json.uuid("id"),
                            .kind = json.text("kind"),
                            .size = *size,
                            .order = json.integer("order", 0),
                            .page = json.integer("page", 0),
                            .col = json.integer("col", -1),
                            .row = json.integer("row", -1),
                            .settings = json.texts("settings")};
    return json.isValid() ? std::optional(std::move(instance)) : std::nullopt;
}

} // namespace

QByteArray encodeLayout(const GridLayout &layout)
{
    JsonWriter json;
    json.beginObject();
    json.key("instances");
    json.beginArray();
    for (const WidgetInstance &instance : layout.instances)
        write(json, instance);
    json.endArray();
    json.member("pageCount", layout.pageCount);
    json.endObject();
    return json.bytes();
}

std::optional<GridLayout> decodeLayout(const QByteArray &bytes)
{
    JsonReader json = JsonReader::fromBytes(bytes);
    const QJsonArray instances = json.array("instances");
    GridLayout layout{.instances = {}, .pageCount = json.integer("pageCount", 1)};
    if (!json.isValid())
        return std::nullopt;
    qint64 pages = 1;
    layout.instances.reserve(instances.size());
    for (const auto &element : instances) {
        auto instance = decodeInstance(element);
        if (!instance)
            return std::nullopt;
        pages = std::max(pages, pagesUpTo(instance->page));
        layout.instances.append(std::move(*instance));
    }
    layout.pageCount = std::max(pages, layout.pageCount);
    return layout;
}

} // namespace brimlight
