#include "grid/GridLayoutCodec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cctype>

namespace brimlight {
namespace {

void appendEscape(QByteArray &out, QChar c)
{
    out.append("\\u").append(QByteArray::number(c.unicode(), 16).rightJustified(4, '0'));
}

/// A JSON text literal. Escaped is what JSON demands, and half a surrogate pair, which UTF-8 cannot express.
void appendText(QByteArray &out, QStringView text)
{
    out.append('"');
    qsizetype done = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate()) {
            ++i;
            continue;
        }
        const bool quoted = c == u'"' || c == u'\\';
        if (!quoted && c >= u' ' && !c.isSurrogate())
            continue;
        out.append(text.sliced(done, i - done).toUtf8());
        if (quoted)
            out.append('\\').append(c.toLatin1());
        else
            appendEscape(out, c);
        done = i + 1;
    }
    out.append(text.sliced(done).toUtf8());
    out.append('"');
}

void appendKey(QByteArray &out, const char *key)
{
    if (!out.endsWith('{'))
        out.append(',');
    out.append('"').append(key).append("\":");
}

void appendNumber(QByteArray &out, const char *key, qint64 value)
{
    appendKey(out, key);
    out.append(QByteArray::number(value));
}

void appendText(QByteArray &out, const char *key, QStringView value)
{
    appendKey(out, key);
    appendText(out, value);
}

void appendInstance(QByteArray &out, const WidgetInstance &instance)
{
    out.append('{');
    appendText(out, "id", instance.id.toString(QUuid::WithoutBraces).toUpper());
    appendText(out, "kind", instance.kind);
    appendText(out, "size", rawValue(instance.size));
    appendNumber(out, "order", instance.order);
    appendNumber(out, "page", instance.page);
    appendNumber(out, "col", instance.col);
    appendNumber(out, "row", instance.row);
    if (instance.settings) {
        appendKey(out, "settings");
        out.append('{');
        for (auto it = instance.settings->cbegin(); it != instance.settings->cend(); ++it) {
            if (!out.endsWith('{'))
                out.append(',');
            appendText(out, it.key());
            out.append(':');
            appendText(out, it.value());
        }
        out.append('}');
    }
    out.append('}');
}

/// A whole number; `fallback` when the key is absent or null; absent when it is anything else.
std::optional<qint64> integer(const QJsonObject &object, const char *key, qint64 fallback)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (value.isUndefined() || value.isNull())
        return fallback;
    if (!value.isDouble())
        return std::nullopt;
    // A fraction or a number beyond 64 bits has no whole reading: then each default comes back.
    const qint64 whole = value.toInteger(0);
    return whole == 0 && value.toInteger(1) == 1 ? std::nullopt : std::optional(whole);
}

std::optional<QString> text(const QJsonObject &object, const char *key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

/// The hyphenated form alone; the general parser also takes braces.
std::optional<QUuid> identifier(const QJsonObject &object)
{
    const QString written = text(object, "id").value_or(QString());
    if (written.size() != 36)
        return std::nullopt;
    for (qsizetype i = 0; i < written.size(); ++i) {
        const char c = written.at(i).toLatin1();
        const bool hyphenated = i == 8 || i == 13 || i == 18 || i == 23;
        if (hyphenated ? c != '-' : !std::isxdigit(static_cast<unsigned char>(c)))
            return std::nullopt;
    }
    return QUuid::fromString(written);
}

/// False when the key holds something that is no object of texts.
bool readSettings(const QJsonObject &object, std::optional<WidgetSettings> &settings)
{
    const QJsonValue value = object.value(QLatin1String("settings"));
    if (value.isUndefined() || value.isNull())
        return true;
    if (!value.isObject())
        return false;
    const QJsonObject stored = value.toObject();
    settings.emplace();
    for (auto it = stored.begin(); it != stored.end(); ++it) {
        if (!it.value().isString())
            return false;
        settings->insert(it.key(), it.value().toString());
    }
    return true;
}

std::optional<WidgetInstance> decodeInstance(const QJsonValue &json)
{
    if (!json.isObject())
        return std::nullopt;
    const QJsonObject object = json.toObject();
    const auto id = identifier(object);
    const auto kind = text(object, "kind");
    const auto size = widgetSizeFromRawValue(text(object, "size").value_or(QString()));
    const auto order = integer(object, "order", 0);
    const auto page = integer(object, "page", 0);
    const auto col = integer(object, "col", -1);
    const auto row = integer(object, "row", -1);
    if (!id || !kind || !size || !order || !page || !col || !row)
        return std::nullopt;
    WidgetInstance instance{
        .id = *id, .kind = *kind, .size = *size, .order = *order, .page = *page, .col = *col, .row = *row};
    if (!readSettings(object, instance.settings))
        return std::nullopt;
    return instance;
}

} // namespace

QByteArray encodeLayout(const GridLayout &layout)
{
    QByteArray out("{");
    appendKey(out, "instances");
    out.append('[');
    for (const WidgetInstance &instance : layout.instances) {
        if (!out.endsWith('['))
            out.append(',');
        appendInstance(out, instance);
    }
    out.append(']');
    appendNumber(out, "pageCount", layout.pageCount);
    out.append('}');
    return out;
}

std::optional<GridLayout> decodeLayout(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject root = document.object();
    const QJsonValue instances = root.value(QLatin1String("instances"));
    const auto pageCount = integer(root, "pageCount", 1);
    if (!instances.isArray() || !pageCount)
        return std::nullopt;
    GridLayout layout{.instances = {}, .pageCount = *pageCount};
    qint64 pages = 1;
    const QJsonArray array = instances.toArray();
    layout.instances.reserve(array.size());
    for (const auto &element : array) {
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
