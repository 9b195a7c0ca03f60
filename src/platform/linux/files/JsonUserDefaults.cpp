#include "platform/linux/files/JsonUserDefaults.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace brimlight {
namespace {

QString dataKey()
{
    return QStringLiteral("data");
}

std::optional<UserDefaults::Value> decodeList(const QJsonArray &array)
{
    QStringList list;
    for (const auto &element : array) {
        if (!element.isString())
            return std::nullopt;
        list.append(element.toString());
    }
    return list;
}

std::optional<UserDefaults::Value> decodeData(const QJsonObject &object)
{
    const QJsonValue encoded = object.value(dataKey());
    if (object.size() != 1 || !encoded.isString())
        return std::nullopt;
    const auto decoded = QByteArray::fromBase64Encoding(encoded.toString().toLatin1(),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return decoded.decoded;
}

std::optional<UserDefaults::Value> decode(const QJsonValue &json)
{
    switch (json.type()) {
    case QJsonValue::Bool:
        return json.toBool();
    case QJsonValue::Double:
        return json.toDouble();
    case QJsonValue::String:
        return json.toString();
    case QJsonValue::Array:
        return decodeList(json.toArray());
    case QJsonValue::Object:
        return decodeData(json.toObject());
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    return std::nullopt;
}

struct Encode
{
    QJsonValue operator()(bool value) const { return value; }
    QJsonValue operator()(double value) const { return value; }
    QJsonValue operator()(const QString &value) const { return value; }
    QJsonValue operator()(const QByteArray &value) const
    {
        return QJsonObject{{dataKey(), QString::fromLatin1(value.toBase64())}};
    }
    QJsonValue operator()(const QStringList &value) const { return QJsonArray::fromStringList(value); }
};

} // namespace

JsonUserDefaults::JsonUserDefaults(SavedFile file)
    : m_file(std::move(file))
{
    const auto content = m_file.read();
    if (!content)
        return;
    const QJsonDocument document = QJsonDocument::fromJson(*content);
    if (document.isObject())
        m_values = document.object();
    else
        m_file.markUnusable();
}

std::optional<UserDefaults::Value> JsonUserDefaults::value(const QString &key) const
{
    return decode(m_values.value(key));
}

void JsonUserDefaults::setValue(const QString &key, const Value &value)
{
    m_values.insert(key, std::visit(Encode{}, value));
    save();
}

void JsonUserDefaults::remove(const QString &key)
{
    m_values.remove(key);
    save();
}

void JsonUserDefaults::save()
{
    m_file.write(QJsonDocument(m_values).toJson());
}

} // namespace brimlight
