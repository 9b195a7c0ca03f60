#pragma once

#include <QAnyStringView>
#include <QByteArray>
#include <QUuid>

#include <concepts>

namespace brimlight {

/// Writes JSON member by member, in the order of the calls and without white space; commas come by
/// themselves. Text is UTF-8; escaped is what JSON demands, and half a surrogate pair, which UTF-8 cannot
/// express.
///
///     JsonWriter json;
///     json.beginObject();
///     json.member("name", name);
///     json.endObject();
class JsonWriter
{
public:
    void beginObject() { begin('{'); }
    void endObject() { m_bytes.append('}'); }
    void beginArray() { begin('['); }
    void endArray() { m_bytes.append(']'); }

    /// The name of what is written next.
    void key(QAnyStringView name);

    void value(QStringView text);
    void value(bool isTrue);
    void value(std::integral auto number) { integer(number); }
    /// The shortest form that reads back as the same number. What is infinite or no number makes the whole
    /// document invalid.
    void value(double number);
    /// The 36 characters with hyphens, upper case.
    void value(const QUuid &id);
    /// Would be taken for a truth value.
    void value(const char *) = delete;

    template<typename T>
    void member(QAnyStringView name, const T &content)
    {
        key(name);
        value(content);
    }

    /// False once a number was given that JSON cannot say.
    bool isValid() const { return m_isValid; }
    const QByteArray &bytes() const { return m_bytes; }

private:
    void separate();
    void begin(char bracket);
    void integer(qint64 number);

    QByteArray m_bytes;
    bool m_isValid = true;
};

} // namespace brimlight
