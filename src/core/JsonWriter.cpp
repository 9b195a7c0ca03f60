#include "core/JsonWriter.h"

#include <QLocale>

#include <cmath>

namespace brimlight {
namespace {

/// Absent for what stands for itself.
QByteArray escaped(QChar c)
{
    switch (c.unicode()) {
    case u'"':
        return "\\\"";
    case u'\\':
        return "\\\\";
    case u'\b':
        return "\\b";
    case u'\f':
        return "\\f";
    case u'\n':
        return "\\n";
    case u'\r':
        return "\\r";
    case u'\t':
        return "\\t";
    default:
        if (c >= u' ' && !c.isSurrogate())
            return {};
        return "\\u" + QByteArray::number(c.unicode(), 16).rightJustified(4, '0');
    }
}

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
        const QByteArray escape = escaped(c);
        if (escape.isEmpty())
            continue;
        out.append(text.sliced(done, i - done).toUtf8());
        out.append(escape);
        done = i + 1;
    }
    out.append(text.sliced(done).toUtf8());
    out.append('"');
}

} // namespace

void JsonWriter::key(QAnyStringView name)
{
    separate();
    appendText(m_bytes, name.toString());
    m_bytes.append(':');
}

void JsonWriter::value(QStringView text)
{
    separate();
    appendText(m_bytes, text);
}

void JsonWriter::value(bool isTrue)
{
    separate();
    m_bytes.append(isTrue ? "true" : "false");
}

void JsonWriter::value(double number)
{
    separate();
    m_isValid = m_isValid && std::isfinite(number);
    m_bytes.append(QByteArray::number(number, 'g', QLocale::FloatingPointShortest));
}

void JsonWriter::value(const QUuid &id)
{
    value(QStringView(id.toString(QUuid::WithoutBraces).toUpper()));
}

void JsonWriter::integer(qint64 number)
{
    separate();
    m_bytes.append(QByteArray::number(number));
}

void JsonWriter::begin(char bracket)
{
    separate();
    m_bytes.append(bracket);
}

void JsonWriter::separate()
{
    if (!m_bytes.isEmpty() && !m_bytes.endsWith('{') && !m_bytes.endsWith('[') && !m_bytes.endsWith(':'))
        m_bytes.append(',');
}

} // namespace brimlight
