#include "app/AppDelegate.h"

#include "app/DebugSignalControls.h"

#include <QCoreApplication>

#include <csignal>

namespace brimlight {

QString launchLine(const QString &version)
{
    return QStringLiteral("Brimlight %1 launched").arg(version.isEmpty() ? QStringLiteral("dev") : version);
}

AppDelegate::AppDelegate()
    : m_log(m_platform.ports().log, m_flags)
{
}

AppDelegate::~AppDelegate()
{
    // Views go before what they show.
    if (m_window)
        m_window->unhost();
}

void AppDelegate::applicationDidFinishLaunching()
{
    m_log.info(launchLine(QStringLiteral(BRIMLIGHT_VERSION)));
    m_stores.emplace(m_platform.ports(), m_log);
    m_window.emplace([this](QWindow &window) { return m_platform.makeSurface(window); });
    m_notch.emplace(*m_stores, m_window->surface());
    m_window->host(m_notch->scene, m_notch->controller);
    m_idleMemory.emplace(m_stores->viewModel, m_stores->platform.scheduler,
                         LinuxPlatform::giveBackFreeMemory);
    m_notch->controller.show();
    m_statusBar.emplace(m_notch->controller, *m_notch->scene.statusMenu(), m_stores->loginItem,
                        m_stores->updater, m_stores->platform.statusItem, [] { QCoreApplication::quit(); });
    // The end of a session ends the program as its menu does: what has just been set is written before.
    m_stores->platform.unixSignals.install(SIGTERM, [] { QCoreApplication::quit(); });
    DebugSignalControls::installIfEnabled(m_flags, m_stores->platform.unixSignals, m_notch->controller,
                                          m_log);
}

} // namespace brimlight
