#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace brimlight {

/// A typed key-value store for the user's preferences, written through at every assignment.
class UserDefaults
{
public:
    using Value = std::variant<bool, double, QString, QByteArray, QStringList>;

    virtual ~UserDefaults() = default;

    /// The stored value, absent when the key is missing or holds something that is none of the five types.
    virtual std::optional<Value> value(const QString &key) const = 0;
    virtual void setValue(const QString &key, const Value &value) = 0;
    virtual void remove(const QString &key) = 0;

    /// The value if it is present and of this type, which is asked and never guessed: a text "1" is no
    /// number.
    template<typename T>
    std::optional<T> read(const QString &key) const
    {
        const auto stored = value(key);
        if (!stored)
            return std::nullopt;
        const T *typed = std::get_if<T>(&*stored);
        return typed ? std::optional<T>(*typed) : std::nullopt;
    }
};

} // namespace brimlight
