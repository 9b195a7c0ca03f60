#include "platform/linux/desktop/SystemOperations.h"

#include "platform/linux/desktop/GnomeSetting.h"
#include "platform/linux/process/Aside.h"

namespace brimlight {
namespace {

std::unique_ptr<GnomeSetting> colorScheme()
{
    return GnomeSetting::open(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("color-scheme"));
}

} // namespace

std::optional<bool> flipColorScheme()
{
    const auto scheme = colorScheme();
    if (!scheme)
        return std::nullopt;
    const QString dark = QStringLiteral("prefer-dark");
    const bool isDark = scheme->text() != dark;
    if (!scheme->setText(isDark ? dark : QStringLiteral("default")))
        return std::nullopt;
    return isDark;
}

std::optional<Obstacle> colorSchemeObstacle()
{
    const auto scheme = colorScheme();
    if (!scheme)
        return Obstacle::noColorScheme;
    return scheme->isWritable() ? std::nullopt : std::optional(Obstacle::lockedColorScheme);
}

ScriptOperation SystemOperations::muteQuery() const
{
    const auto run = [&audio = audio](QObject &context, const ScriptReply &done) {
        audio.outputMuted(context, [done](std::optional<bool> muted) {
            if (muted)
                done(*muted ? QStringLiteral("true") : QStringLiteral("false"));
            else
                done(std::nullopt);
        });
    };
    const auto check = [&audio = audio](QObject &context, const ObstacleReply &answered) {
        audio.outputMuted(context, [answered](std::optional<bool> muted) {
            answered(muted ? std::nullopt : std::optional(Obstacle::noAudioOutput));
        });
    };
    return {run, check};
}

ScriptOperation SystemOperations::muteToggle() const
{
    const auto run = [&audio = audio](QObject &context, const ScriptReply &done) {
        audio.toggleOutputMuted(context, [done] { done(QString()); });
    };
    return {run, muteQuery().check};
}

ScriptOperation SystemOperations::darkModeToggle() const
{
    const auto run = [plasma = plasma, told = darkModeSet](QObject &context, const ScriptReply &done) {
        runAside<std::optional<bool>>(
            context, [plasma] { return plasma ? plasma->flip() : flipColorScheme(); },
            [told, done](std::optional<bool> isDark) {
                if (isDark)
                    told(*isDark);
                done(isDark ? std::optional(QString()) : std::nullopt);
            });
    };
    const auto check = [plasma = plasma](QObject &context, const ObstacleReply &answered) {
        runAside<std::optional<Obstacle>>(
            context, [plasma] { return plasma ? plasma->obstacle() : colorSchemeObstacle(); }, answered);
    };
    return {run, check};
}

ScriptOperation SystemOperations::trashEmptying() const
{
    const auto run = [trash = trash](QObject &context, const ScriptReply &done) {
        runAside<bool>(
            context, [trash] { return trash.empty(); },
            [done](bool all) { done(all ? std::optional(QString()) : std::nullopt); });
    };
    const auto check = [trash = trash](QObject &context, const ObstacleReply &answered) {
        runAside<bool>(
            context, [trash] { return trash.exists(); },
            [answered](bool exists) { answered(exists ? std::nullopt : std::optional(Obstacle::noTrash)); });
    };
    return {run, check};
}

ScriptTable SystemOperations::table() const
{
    return {{systemScripts::outputMuted, muteQuery()},
            {systemScripts::toggleMute, muteToggle()},
            {systemScripts::toggleDarkMode, darkModeToggle()},
            {systemScripts::emptyTrash, trashEmptying()}};
}

} // namespace brimlight
