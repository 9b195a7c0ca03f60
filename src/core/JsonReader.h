#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>
#include <QUuid>

#include <optional>

namespace brimlight {

/// Takes the members out of a JSON object, strictly: a missing member that has no default or one of another
/// type makes the reader invalid, and what it gave is not to be used. A null counts as missing; members that
/// nobody asks for are passed over.
class JsonReader
{
public:
    /// Invalid when this is no object.
    explicit JsonReader(const QJsonValue &value);
    /// Invalid when the bytes are no JSON object.
    static JsonReader fromBytes(const QByteArray &json);

    /// False once something was missing or wrong.
    bool isValid() const { return m_isValid; }
    /// Makes it invalid: the caller knows of something wrong.
    void fail() { m_isValid = false; }

    QString text(const char *key);
    /// A finite number.
    double number(const char *key);
    /// A whole number of 64 bits, `fallback` when it is missing.
    qint64 integer(const char *key, qint64 fallback);
    /// The form with hyphens alone.
    QUuid uuid(const char *key);
    QJsonArray array(const char *key);
    JsonReader object(const char *key);
    /// An object of texts; absent when it is missing.
    std::optional<QMap<QString, QString>> texts(const char *key);

private:
    QJsonValue member(const char *key) const { return m_object.value(QLatin1String(key)); }

    QJsonObject m_object;
    bool m_isValid;
};

} // namespace brimlight
