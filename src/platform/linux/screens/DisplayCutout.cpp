#include "platform/linux/screens/DisplayCutout.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <cmath>

namespace brimlight {
namespace {

/// How many numbers one repetition of a path command takes; -1 for what is no command.
int argumentCount(char16_t command)
{
    switch (QChar::toLower(command)) {
    case u'm':
    case u'l':
    case u't':
        return 2;
    case u'h':
    case u'v':
        return 1;
    case u's':
    case u'q':
        return 4;
    case u'c':
        return 6;
    case u'a':
        return 7;
    case u'z':
        return 0;
    default:
        return -1;
    }
}

class PathReader
{
public:
    explicit PathReader(const QString &text)
        : m_text(text)
    {
    }

    bool atEnd()
    {
        skipSeparators();
        return m_position >= m_text.size();
    }

    /// The next command letter, or 0 when a number stands there.
    char16_t command()
    {
        skipSeparators();
        if (m_position < m_text.size() && m_text.at(m_position).isLetter())
            return m_text.at(m_position++).unicode();
        return 0;
    }

    std::optional<double> number()
    {
        skipSeparators();
        qsizetype end = m_position;
        const auto at = [&](qsizetype i) { return i < m_text.size() ? m_text.at(i).unicode() : char16_t(0); };
        const auto digits = [&] {
            while (at(end) >= u'0' && at(end) <= u'9')
                ++end;
        };
        if (at(end) == u'-' || at(end) == u'+')
            ++end;
        digits();
        if (at(end) == u'.') {
            ++end;
            digits();
        }
        if (at(end) == u'e' || at(end) == u'E') {
            ++end;
            if (at(end) == u'-' || at(end) == u'+')
                ++end;
            digits();
        }
        bool ok = false;
        const double value = QStringView(m_text).mid(m_position, end - m_position).toDouble(&ok);
        if (!ok || !std::isfinite(value))
            return std::nullopt;
        m_position = end;
        return value;
    }

private:
    void skipSeparators()
    {
        while (m_position < m_text.size() &&
               (m_text.at(m_position).isSpace() || m_text.at(m_position) == u','))
            ++m_position;
    }

    const QString &m_text;
    qsizetype m_position = 0;
};

class Bounds
{
public:
    void add(QPointF p)
    {
        if (!m_rect)
            m_rect = QRectF(p, QSizeF(0, 0));
        m_rect->setCoords(std::min(m_rect->left(), p.x()), std::min(m_rect->top(), p.y()),
                          std::max(m_rect->right(), p.x()), std::max(m_rect->bottom(), p.y()));
    }
    const std::optional<QRectF> &rect() const { return m_rect; }

private:
    std::optional<QRectF> m_rect;
};

/// Moves along one command and adds the points it names; arcs count with their end points.
void follow(char16_t command, const QList<double> &n, QPointF &current, QPointF &start, Bounds &bounds)
{
    const bool relative = QChar::isLower(command);
    const QPointF origin = relative ? current : QPointF();
    switch (QChar::toLower(command)) {
    case u'z':
        current = start;
        return;
    case u'h':
        current.setX(origin.x() + n[0]);
        break;
    case u'v':
        current.setY(origin.y() + n[0]);
        break;
    case u'a':
        current = origin + QPointF(n[5], n[6]);
        break;
    default:
        for (qsizetype i = 0; i + 1 < n.size(); i += 2)
            bounds.add(origin + QPointF(n[i], n[i + 1]));
        current = origin + QPointF(n[n.size() - 2], n[n.size() - 1]);
        if (QChar::toLower(command) == u'm')
            start = current;
    }
    bounds.add(current);
}

} // namespace

std::optional<QRectF> svgPathBounds(const QString &path)
{
    PathReader reader(path);
    Bounds bounds;
    QPointF current;
    QPointF start;
    char16_t command = 0;
    while (!reader.atEnd()) {
        if (const char16_t next = reader.command())
            command = next;
        else if (command == 0 || QChar::toLower(command) == u'z')
            return std::nullopt;
        const int count = argumentCount(command);
        if (count < 0)
            return std::nullopt;
        QList<double> numbers;
        for (int i = 0; i < count; ++i) {
            const auto number = reader.number();
            if (!number)
                return std::nullopt;
            numbers.append(*number);
        }
        follow(command, numbers, current, start, bounds);
        // Further pairs after a move are lines.
        if (command == u'M')
            command = u'L';
        else if (command == u'm')
            command = u'l';
    }
    return bounds.rect();
}

std::optional<DisplayPanelData> parseDisplayPanel(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject root = document.object();
    DisplayPanelData panel{.width = root.value(QLatin1String("x-res")).toDouble(),
                           .height = root.value(QLatin1String("y-res")).toDouble(),
                           .topCutout = std::nullopt};
    if (!(panel.width > 0) || !(panel.height > 0))
        return std::nullopt;
    const QRectF display(0, 0, panel.width, panel.height);
    const QJsonArray cutouts = root.value(QLatin1String("cutouts")).toArray();
    for (const auto &cutout : cutouts) {
        const auto bounds = svgPathBounds(cutout.toObject().value(QLatin1String("path")).toString());
        if (!bounds)
            continue;
        const QRectF inside = bounds->intersected(display);
        // A punch hole a little below the edge belongs to the housing as well.
        const double reach = panel.height / 10;
        if (!inside.isEmpty() && inside.top() < reach &&
            (!panel.topCutout || inside.top() < panel.topCutout->top()))
            panel.topCutout = inside;
    }
    return panel;
}

QStringList parseCompatible(const QByteArray &bytes)
{
    QStringList names;
    for (const QByteArray &name : bytes.split('\0')) {
        // The names become file names.
        if (!name.isEmpty() && !name.contains('/'))
            names.append(QString::fromUtf8(name));
    }
    return names;
}

std::optional<DisplayPanelData> findPanel(const QString &compatibleFile, const QStringList &folders)
{
    QFile compatible(compatibleFile);
    if (!compatible.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QStringList names = parseCompatible(compatible.readAll());
    for (const QString &name : names) {
        for (const QString &folder : folders) {
            QFile file(folder + QLatin1Char('/') + name + QStringLiteral(".json"));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            if (auto panel = parseDisplayPanel(file.readAll()))
                return panel;
        }
    }
    return std::nullopt;
}

std::optional<DisplayPanelData> thisMachinesPanel()
{
    QStringList folders;
    const QStringList data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString &folder : data)
        folders.append(folder + QStringLiteral("/gmobile/devices/display-panels"));
    return findPanel(QStringLiteral("/proc/device-tree/compatible"), folders);
}

} // namespace brimlight
