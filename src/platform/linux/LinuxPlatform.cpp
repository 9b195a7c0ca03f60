#include "platform/linux/LinuxPlatform.h"

#include "platform/linux/audio/PulseAudioServer.h"
#include "platform/linux/audio/ThemeSounds.h"
#include "platform/linux/dbus/DesktopAppearance.h"
#include "platform/linux/dbus/InhibitorAssertions.h"
#include "platform/linux/dbus/StatusNotifierItem.h"
#include "platform/linux/desktop/LinuxDoNotDisturb.h"
#include "platform/linux/desktop/SystemOperations.h"
#include "platform/linux/files/BackgroundFileWriter.h"
#include "platform/linux/files/JsonUserDefaults.h"
#include "platform/linux/files/XdgAutostart.h"
#include "platform/linux/files/XdgFolders.h"
#include "platform/linux/kernel/BacklightBrightness.h"
#include "platform/linux/kernel/HwmonSmc.h"
#include "platform/linux/kernel/LinuxHostStatistics.h"
#include "platform/linux/kernel/LinuxMachineInfo.h"
#include "platform/linux/kernel/SysfsPowerSources.h"
#include "platform/linux/kernel/ThermalZones.h"
#include "platform/linux/process/JournalLog.h"
#include "platform/linux/process/PipeUnixSignals.h"
#include "platform/linux/process/QtScheduler.h"
#include "platform/linux/screens/QtScreens.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11OverlaySurface.h"
#include "platform/linux/x11/X11Pointer.h"
#include "platform/linux/x11/X11ScreenSaver.h"

#include <QCoreApplication>
#include <QThreadPool>
#include <QWindow>

#include <malloc.h>

namespace brimlight {
namespace {

/// A surface without a display: the window stands where it is put and nothing else happens. For offscreen
/// runs.
class BareSurface : public OverlaySurface
{
public:
    explicit BareSurface(QWindow &window)
        : m_window(window)
    {
    }

    void setEvents(Events) override {}
    void orderFront() override { m_window.show(); }
    void setExtent(const Rect &extent) override
    {
        m_window.resize(QSizeF(extent.width, extent.height).toSize());
    }
    void setOutlines(const std::vector<SurfaceOutline> &) override {}
    void setSensor(const SurfaceSensor &) override {}
    void setScrollable(std::function<ScrollAxes(Point)>) override {}
    void setWantsKeyboard(bool) override {}
    void setWatchesEscape(bool) override {}
    SurfaceBackdrop backdrop() const override { return SurfaceBackdrop::translucent; }

private:
    QWindow &m_window;
};

/// What is read on other threads.
struct MachineBackends
{
    LinuxHostStatistics statistics;
    SysfsPowerSources power;
    LinuxMachineInfo info;
    HwmonSmc smc;
    ThermalZones thermal;
};

} // namespace

struct LinuxPlatform::Backends
{
    ~Backends()
    {
        // A thread that hangs in a driver still uses them, and nobody waits for it.
        if (!scheduler.isAsideIdle())
            static_cast<void>(machine.release());
    }

    std::unique_ptr<X11Connection> x11 = X11Connection::ofApplication();
    QtScheduler scheduler;
    XdgFolders folders;
    JournalLog log;
    BackgroundFileWriter files{log};
    JsonUserDefaults defaults{SavedFile(folders.userDefaultsFile(), files)};
    QtScreens screens{thisMachinesPanel()};
    X11Pointer pointer{x11.get()};
    PipeUnixSignals unixSignals;
    DesktopAppearance appearance{scheduler};
    std::unique_ptr<MachineBackends> machine = std::make_unique<MachineBackends>();
    XdgAutostart loginItem{folders.autostartFolder(), QCoreApplication::applicationFilePath()};
    StatusNotifierItem statusItem{scheduler};
    PulseAudioServer audio{scheduler};
    BacklightBrightness brightness;
    LinuxDoNotDisturb doNotDisturb{scheduler};
    LinuxScriptHost scripts{
        scheduler, SystemOperations{.audio = audio,
                                    .darkModeSet = [this](bool isDark) { appearance.setDark(isDark); },
                                    .plasma = PlasmaColors::ofDesktop()}
                       .table()};
    std::optional<X11ScreenSaver> screenSaver =
        x11 && !x11->isXWayland() ? std::make_optional<X11ScreenSaver>(*x11) : std::nullopt;
    InhibitorAssertions powerAssertions{
        sessionBus, systemBus, InhibitorAssertions::defaultPatience,
        ScreenTimers{.canBeHeld = [this] { return screenSaver && screenSaver->canBeSuspended(); },
                     .setHeld = [this](bool held) { screenSaver->setSuspended(held); }}};
    ThemeSounds sounds;
    std::unique_ptr<X11Connection::Listening> workspace = x11 ? watchWorkspace() : nullptr;

    std::unique_ptr<X11Connection::Listening> watchWorkspace()
    {
        return std::make_unique<X11Connection::Listening>(
            *x11, [this, root = x11->root(),
                   current = x11->atom("_NET_CURRENT_DESKTOP")](const xcb_generic_event_t &event) {
                const auto &property = reinterpret_cast<const xcb_property_notify_event_t &>(event);
                if ((event.response_type & ~0x80) == XCB_PROPERTY_NOTIFY && property.window == root &&
                    property.atom == current)
                    screens.workspaceChanged();
                return false;
            });
    }
};

LinuxPlatform::LinuxPlatform()
    : m_backends(std::make_unique<Backends>())
{
    // What runs on these threads waits rather than works: one slow file system must not hold up the bus.
    constexpr int enough = 8;
    QThreadPool::globalInstance()->setMaxThreadCount(enough);
}

LinuxPlatform::~LinuxPlatform() = default;

Platform LinuxPlatform::ports()
{
    Backends &b = *m_backends;
    return {b.scheduler,       b.defaults,      b.files,        b.folders,          b.log,
            b.screens,         b.pointer,       b.unixSignals,  b.appearance,       b.machine->statistics,
            b.machine->power,  b.machine->info, b.machine->smc, b.machine->thermal, b.loginItem,
            b.statusItem,      b.audio,         b.brightness,   b.doNotDisturb,     b.scripts,
            b.powerAssertions, b.sounds};
}

std::unique_ptr<OverlaySurface> LinuxPlatform::makeSurface(QWindow &window)
{
    Backends &b = *m_backends;
    if (!b.x11)
        return std::make_unique<BareSurface>(window);
    return std::make_unique<X11OverlaySurface>(window, *b.x11, b.scheduler,
                                               [&b](bool over) { b.pointer.setOverSurface(over); });
}

void LinuxPlatform::giveBackFreeMemory()
{
    malloc_trim(0);
}

} // namespace brimlight
