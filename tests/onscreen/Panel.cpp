#include "Panel.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

bool isTraceLine(const QString &line)
{
    static const QRegularExpression known(
        u"^(?:Debug signal controls ready \\(pid=\\d+, SIGUSR1=expand, SIGUSR2=collapse\\)"
        "|Notch panel ordered front \\(theme=.+, widgets=\\d+, pages=\\d+\\)"
        "|Notch (?:EXPANDED|COLLAPSED) frame=\\(-?\\d+,-?\\d+ \\d+x\\d+\\)"
        "|Repositioned on \".*\": hasNotch=(?:true|false) collapsed=\\d+x\\d+ frame=\\(-?\\d+,-?\\d+ "
        "\\d+x\\d+\\)"
        "|No screen available — skipping placement"
        "|Tap toggle pin -> pinned=(?:true|false)"
        "|Ticker active=(?:true|false) interval=[\\d.]+"
        "|Page -> \\d+/\\d+"
        "|Field text=\\w*"
        "|Files dropped on notch -> shelf \\(\\d+ items\\))$"_s);
    return known.match(line).hasMatch();
}

} // namespace

Panel::Panel(const QString &program, const QProcessEnvironment &environment)
    : m_process(program, {}, environment)
{
}

std::optional<QRegularExpressionMatch> Panel::waitForLine(const QString &pattern, milliseconds limit)
{
    const QRegularExpression wanted(pattern);
    const auto deadline = Clock::now() + limit;
    while (true) {
        read();
        while (m_next < m_lines.size()) {
            const auto match = wanted.match(m_lines[m_next++]);
            if (match.hasMatch())
                return match;
        }
        if (!isRunning() || Clock::now() > deadline)
            return std::nullopt;
        // Returns as soon as the program says something.
        m_process.waitForReadyRead(20);
    }
}

bool Panel::keepsSilentAbout(const QString &pattern, milliseconds duration)
{
    const qsizetype from = m_next;
    const bool silent = !waitForLine(pattern, duration);
    m_next = from;
    return silent && isRunning();
}

const QStringList &Panel::lines()
{
    read();
    return m_lines;
}

QStringList Panel::unexpectedLines()
{
    QStringList unexpected;
    for (const QString &line : lines()) {
        if (!isTraceLine(line))
            unexpected.append(line);
    }
    return unexpected;
}

bool Panel::isRunning()
{
    // Only waiting makes QProcess notice an end when there is no event loop.
    m_process.waitForFinished(0);
    return m_process.state() == QProcess::Running;
}

bool Panel::waitForExit(milliseconds limit)
{
    return m_process.state() == QProcess::NotRunning ||
           m_process.waitForFinished(static_cast<int>(limit.count()));
}

void Panel::end()
{
    m_process.end();
    read();
}

void Panel::read()
{
    m_process.setReadChannel(QProcess::StandardError);
    m_process.waitForReadyRead(0);
    m_unfinished += m_process.readAllStandardError();
    while (true) {
        const qsizetype end = m_unfinished.indexOf('\n');
        if (end < 0)
            return;
        m_lines.append(QString::fromUtf8(m_unfinished.first(end)));
        m_unfinished.remove(0, end + 1);
    }
}

} // namespace brimlight::onscreen
