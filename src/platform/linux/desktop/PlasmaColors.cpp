#include "platform/linux/desktop/PlasmaColors.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <array>

namespace brimlight {
namespace {

/// Also for a desktop that is busy starting.
constexpr int patienceMilliseconds = 15000;

const QString schemeTool = QStringLiteral("plasma-apply-colorscheme");
/// Changes more than the colours, but is there where the other one is not.
const QString lookTool = QStringLiteral("plasma-apply-lookandfeel");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Runs a tool of the desktop to its end; false when it fails.
bool succeeds(const QString &program, const QStringList &arguments)
{
    QProcess process;
    // Chosen for this program: the tool finds its own way to the display.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    return process.waitForFinished(patienceMilliseconds) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

QString variable(const char *name, const QString &fallback)
{
    const QString value = qEnvironmentVariable(name);
    return value.isEmpty() ? fallback : value;
}

} // namespace

std::optional<QByteArray> plasmaSetting(const QByteArray &file, const QByteArray &group,
                                        const QByteArray &key)
{
    bool isInGroup = false;
    for (const QByteArray &raw : file.split('\n')) {
        const QByteArray line = raw.trimmed();
        if (line.startsWith('['))
            isInGroup = line == '[' + group + ']' || line.startsWith('[' + group + "][$");
        const qsizetype equals = line.indexOf('=');
        if (!isInGroup || equals < 0)
            continue;
        // Flags stand behind the name: "Key[$i]".
        const QByteArray name = line.left(equals).trimmed();
        if (name == key || name.startsWith(key + "[$"))
            return line.mid(equals + 1).trimmed();
    }
    return std::nullopt;
}

std::optional<bool> hasDarkWindows(const QByteArray &scheme)
{
    const auto color = plasmaSetting(scheme, "Colors:Window", "BackgroundNormal");
    const QByteArrayList parts = color.value_or(QByteArray()).split(',');
    if (parts.size() < 3)
        return std::nullopt;
    const int brightness = parts[0].toInt() * 299 + parts[1].toInt() * 587 + parts[2].toInt() * 114;
    constexpr int middle = 128 * 1000;
    return brightness < middle;
}

QString otherHalf(const QString &scheme)
{
    const QString light = QStringLiteral("Light");
    const QString dark = QStringLiteral("Dark");
    if (scheme.contains(light))
        return QString(scheme).replace(light, dark);
    if (scheme.contains(dark))
        return QString(scheme).replace(dark, light);
    return {};
}

std::shared_ptr<PlasmaColors> PlasmaColors::ofDesktop(const QString &desktops)
{
    if (!desktops.split(u':').contains(QStringLiteral("KDE")))
        return nullptr;
    const auto split = [](const QString &list) { return list.split(u':', Qt::SkipEmptyParts); };
    // The session adds a folder with the defaults of the chosen look to the system's.
    Places places{.configFolders = {QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)},
                  .dataFolders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation),
                  .programFolders = split(qEnvironmentVariable("PATH"))};
    places.configFolders += split(variable("XDG_CONFIG_DIRS", QStringLiteral("/etc/xdg")));
    return std::make_shared<PlasmaColors>(std::move(places));
}

PlasmaColors::PlasmaColors(Places places)
    : m_places(std::move(places))
{
}

std::optional<bool> PlasmaColors::flip()
{
    const std::scoped_lock lock(m_mutex);
    const Scheme now = current();
    const bool becomesDark = !now.isDark;
    (now.isDark ? m_lastDark : m_lastLight) = now.name;
    QStringList candidates{becomesDark ? m_lastDark : m_lastLight, otherHalf(now.name),
                           becomesDark ? QStringLiteral("BreezeDark") : QStringLiteral("BreezeLight")};
    candidates.removeAll(QString());
    candidates.removeDuplicates();
    for (const QString &candidate : candidates) {
        const std::optional<bool> isDark = hasDarkWindows(schemeFile(candidate));
        if (isDark == becomesDark && apply(candidate))
            return becomesDark;
    }
    return applyLook(becomesDark) ? std::optional(becomesDark) : std::nullopt;
}

std::optional<Obstacle> PlasmaColors::obstacle() const
{
    const bool hasTool = !program(schemeTool).isEmpty() || !program(lookTool).isEmpty();
    return hasTool ? std::nullopt : std::optional(Obstacle::noColorSchemeTool);
}

PlasmaColors::Scheme PlasmaColors::current() const
{
    for (const QString &folder : m_places.configFolders) {
        const QByteArray globals = contentOf(folder + QStringLiteral("/kdeglobals"));
        const auto name = plasmaSetting(globals, "General", "ColorScheme");
        // Whoever changes the scheme writes its colours beside its name; defaults are a name alone.
        std::optional<bool> isDark = hasDarkWindows(globals);
        if (!isDark && name)
            isDark = hasDarkWindows(schemeFile(QString::fromUtf8(*name)));
        if (isDark)
            return {.name = QString::fromUtf8(name.value_or(QByteArray())), .isDark = *isDark};
    }
    return {};
}

QByteArray PlasmaColors::schemeFile(const QString &name) const
{
    for (const QString &folder : m_places.dataFolders) {
        QByteArray content = contentOf(folder + QStringLiteral("/color-schemes/%1.colors").arg(name));
        if (!content.isEmpty())
            return content;
    }
    return {};
}

QString PlasmaColors::program(const QString &name) const
{
    return QStandardPaths::findExecutable(name, m_places.programFolders);
}

bool PlasmaColors::apply(const QString &scheme) const
{
    const QString tool = program(schemeTool);
    return !tool.isEmpty() && succeeds(tool, {scheme});
}

bool PlasmaColors::applyLook(bool dark) const
{
    const QString tool = program(lookTool);
    const QString look =
        dark ? QStringLiteral("org.kde.breezedark.desktop") : QStringLiteral("org.kde.breeze.desktop");
    return !tool.isEmpty() && succeeds(tool, {QStringLiteral("--apply"), look});
}

} // namespace brimlight
