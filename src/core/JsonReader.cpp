#include "core/JsonReader.h"

#include <QJsonDocument>

#include <cctype>
#include <cmath>

namespace brimlight {
namespace {

bool isMissing(const QJsonValue &value)
{
    return value.isUndefined() || value.isNull();
}

/// The parser of Qt also takes braces.
bool isHyphenated(const QString &text)
{
    constexpr qsizetype length = 36;
    if (text.size() != length)
        return false;
    for (qsizetype i = 0; i < length; ++i) {
        const char c = text.at(i).toLatin1();
        const bool hyphen = i == 8 || i == 13 || i == 18 || i == 23;
        if (hyphen ? c != '-' : !std::isxdigit(static_cast<unsigned char>(c)))
            return false;
    }
    return true;
}

} // namespace

JsonReader::JsonReader(const QJsonValue &value)
    : m_object(value.toObject())
    , m_isValid(value.isObject())
{
}

JsonReader JsonReader::fromBytes(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return JsonReader(document.isObject() ? QJsonValue(document.object()) : QJsonValue());
}

QString JsonReader::text(const char *key)
{
    const QJsonValue value = member(key);
    if (!value.isString())
        fail();
    return value.toString();
}

double JsonReader::number(const char *key)
{
    const QJsonValue value = member(key);
    if (!value.isDouble() || !std::isfinite(value.toDouble()))
        fail();
    return value.toDouble();
}

qint64 JsonReader::integer(const char *key, qint64 fallback)
{
    const QJsonValue value = member(key);
    if (isMissing(value))
        return fallback;
    // A fraction or a number beyond 64 bits has no whole reading: then each default comes back.
    if (!value.isDouble() || value.toInteger(0) != value.toInteger(1))
        fail();
    return value.toInteger(fallback);
}

QUuid JsonReader::uuid(const char *key)
{
    const QString written = text(key);
    if (!isHyphenated(written))
        fail();
    return QUuid::fromString(written);
}

QJsonArray JsonReader::array(const char *key)
{
    const QJsonValue value = member(key);
    if (!value.isArray())
        fail();
    return value.toArray();
}

JsonReader JsonReader::object(const char *key)
{
    JsonReader inner(member(key));
    if (!inner.isValid())
        fail();
    return inner;
}

std::optional<QMap<QString, QString>> JsonReader::texts(const char *key)
{
    const QJsonValue value = member(key);
    if (isMissing(value))
        return std::nullopt;
    if (!value.isObject())
        fail();
    std::optional<QMap<QString, QString>> texts(std::in_place);
    const QJsonObject stored = value.toObject();
    for (auto it = stored.begin(); it != stored.end(); ++it) {
        if (!it.value().isString())
            fail();
        texts->insert(it.key(), it.value().toString());
    }
    return texts;
}

} // namespace brimlight
