#include "platform/linux/desktop/SystemOperations.h"

#include "platform/linux/desktop/GnomeSetting.h"
#include "platform/linux/process/Aside.h"

namespace brimlight {

std::optional<bool> flipColorScheme()
{
    const auto scheme =
        GnomeSetting::open(QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("color-scheme"));
    if (!scheme)
        return std::nullopt;
    const QString dark = QStringLiteral("prefer-dark");
    const bool isDark = scheme->text() != dark;
    if (!scheme->setText(isDark ? dark : QStringLiteral("default")))
        return std::nullopt;
    return isDark;
}

ScriptTable SystemOperations::table() const
{
    const ScriptOperation queryMute = [&audio = audio](QObject &context, const ScriptReply &done) {
        audio.outputMuted(context, [done](std::optional<bool> muted) {
            if (muted)
                done(*muted ? QStringLiteral("true") : QStringLiteral("false"));
            else
                done(std::nullopt);
        });
    };
    const ScriptOperation toggleMute = [&audio = audio](QObject &context, const ScriptReply &done) {
        audio.toggleOutputMuted(context, [done] { done(QString()); });
    };
    const ScriptOperation toggleDarkMode = [uses = usesGnomeSettings,
                                            told = darkModeSet](QObject &context, const ScriptReply &done) {
        runAside<std::optional<bool>>(
            context, [uses] { return uses ? flipColorScheme() : std::nullopt; },
            [told, done](std::optional<bool> isDark) {
                if (isDark)
                    told(*isDark);
                done(isDark ? std::optional(QString()) : std::nullopt);
            });
    };
    const ScriptOperation emptyTrash = [trash = trash](QObject &context, const ScriptReply &done) {
        runAside<bool>(
            context, [trash] { return trash.empty(); },
            [done](bool all) { done(all ? std::optional(QString()) : std::nullopt); });
    };
    return {{systemScripts::outputMuted, queryMute},
            {systemScripts::toggleMute, toggleMute},
            {systemScripts::toggleDarkMode, toggleDarkMode},
            {systemScripts::emptyTrash, emptyTrash}};
}

} // namespace brimlight
