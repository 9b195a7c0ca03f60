#include "app/AppDelegate.h"

#include "app/AllWidgets.h"
#include "app/DebugSignalControls.h"

#include <QCoreApplication>

namespace brimlight {

QString launchLine(const QString &version)
{
    return QStringLiteral("Brimlight %1 launched").arg(version.isEmpty() ? QStringLiteral("dev") : version);
}

AppDelegate::AppDelegate()
    : m_log(m_platform.ports().log, m_flags)
    , m_widgets(allWidgets())
{
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_log.info(launchLine(QStringLiteral(BRIMLIGHT_VERSION)));
    m_window.emplace([this](QWindow &window) { return m_platform.makeSurface(window); });
    m_notch.emplace(m_platform.ports(), *m_window, m_log, m_widgets);
    m_idleMemory.emplace(*m_notch->viewModel(), m_platform.ports().scheduler,
                         LinuxPlatform::giveBackFreeMemory);
    m_notch->show();
    m_statusBar.emplace(*m_notch, *m_notch->loginItem(), m_platform.ports().statusItem,
                        [] { QCoreApplication::quit(); });
    DebugSignalControls::installIfEnabled(m_flags, m_platform.ports().unixSignals, *m_notch, m_log);
}

} // namespace brimlight
