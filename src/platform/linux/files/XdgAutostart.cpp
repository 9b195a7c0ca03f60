#include "platform/linux/files/XdgAutostart.h"

#include "platform/WholeFile.h"

#include <QFile>
#include <QStringList>

#include <algorithm>

namespace brimlight {
namespace {

const QString mainGroup = QStringLiteral("[Desktop Entry]");
const QString execKey = QStringLiteral("Exec");
const QString hiddenKey = QStringLiteral("Hidden");
const QString gnomeKey = QStringLiteral("X-GNOME-Autostart-enabled");

QString keyOf(const QString &line)
{
    return line.section(u'=', 0, 0).trimmed();
}

QString valueOf(const QString &line)
{
    return line.section(u'=', 1).trimmed();
}

/// The lines of a desktop entry, of which only those of its main group are looked at.
class EntryLines
{
public:
    explicit EntryLines(const QByteArray &content)
        : m_lines(QString::fromUtf8(content).split(u'\n'))
    {
        while (!m_lines.isEmpty() && m_lines.last().trimmed().isEmpty())
            m_lines.removeLast();
        const auto isGroup = [](const QString &line) { return line.trimmed().startsWith(u'['); };
        const auto heading =
            std::ranges::find_if(m_lines, [](const QString &line) { return line.trimmed() == mainGroup; });
        if (heading == m_lines.end())
            return;
        m_first = heading - m_lines.begin() + 1;
        m_count = std::find_if(heading + 1, m_lines.end(), isGroup) - heading - 1;
    }

    bool hasMainGroup() const { return m_first > 0; }
    QString value(const QString &key) const
    {
        const QStringList group = m_lines.mid(m_first, m_count);
        const auto line = std::ranges::find(group, key, keyOf);
        return line == group.end() ? QString() : valueOf(*line);
    }
    void remove(const QString &key)
    {
        for (qsizetype i = m_first + m_count - 1; i >= m_first; --i) {
            if (keyOf(m_lines[i]) == key) {
                m_lines.removeAt(i);
                --m_count;
            }
        }
    }
    void set(const QString &key, const QString &value)
    {
        const QString line = key + u'=' + value;
        for (qsizetype i = m_first; i < m_first + m_count; ++i) {
            if (keyOf(m_lines[i]) == key) {
                m_lines[i] = line;
                return;
            }
        }
        m_lines.insert(m_first, line);
        ++m_count;
    }
    QByteArray content() const { return (m_lines.join(u'\n') + u'\n').toUtf8(); }

private:
    QStringList m_lines;
    qsizetype m_first = 0;
    qsizetype m_count = 0;
};

EntryLines freshEntry()
{
    return EntryLines("[Desktop Entry]\n"
                      "Type=Application\n"
                      "Name=Brimlight\n"
                      "Comment=Widgets at the top of the screen\n"
                      "Terminal=false\n");
}

std::optional<QByteArray> contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

} // namespace

QString execArgument(const QString &path)
{
    QString quoted;
    for (const QChar c : path) {
        if (QStringLiteral("\"`$\\").contains(c))
            quoted += u'\\';
        quoted += c;
    }
    // What a value of any key escapes comes on top.
    quoted.replace(u'\\', QStringLiteral("\\\\"));
    quoted.replace(u'\n', QStringLiteral("\\n")).replace(u'\t', QStringLiteral("\\t"));
    quoted.replace(u'\r', QStringLiteral("\\r")).replace(u'%', QStringLiteral("%%"));
    return u'"' + quoted + u'"';
}

XdgAutostart::XdgAutostart(const QString &folder, QString executable)
    : m_path(folder.isEmpty() ? QString() : folder + QStringLiteral("/brimlight.desktop"))
    , m_executable(std::move(executable))
{
}

bool XdgAutostart::isEnabled() const
{
    const auto content = m_path.isEmpty() ? std::nullopt : contentOf(m_path);
    if (!content)
        return false;
    const EntryLines entry(*content);
    return !entry.value(execKey).isEmpty() && entry.value(hiddenKey) != QLatin1String("true") &&
           entry.value(gnomeKey) != QLatin1String("false");
}

std::optional<QString> XdgAutostart::enable()
{
    if (m_path.isEmpty())
        return QStringLiteral("There is no home folder");
    WholeFile file(m_path);
    EntryLines entry(file.read().value_or(QByteArray()));
    if (!entry.hasMainGroup())
        entry = freshEntry();
    entry.remove(hiddenKey);
    entry.remove(gnomeKey);
    entry.set(execKey, execArgument(m_executable));
    if (file.write(entry.content()))
        return std::nullopt;
    return QStringLiteral("Cannot write %1: %2").arg(m_path, file.errorString());
}

std::optional<QString> XdgAutostart::disable()
{
    QFile file(m_path);
    if (m_path.isEmpty() || !file.exists())
        return QStringLiteral("There is no entry to remove");
    if (file.remove())
        return std::nullopt;
    return QStringLiteral("Cannot remove %1: %2").arg(m_path, file.errorString());
}

} // namespace brimlight
