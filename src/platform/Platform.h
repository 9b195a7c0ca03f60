#pragma once

#include "platform/Appearance.h"
#include "platform/AudioServer.h"
#include "platform/DisplayBrightness.h"
#include "platform/DoNotDisturb.h"
#include "platform/FileWriter.h"
#include "platform/Folders.h"
#include "platform/HostStatistics.h"
#include "platform/Log.h"
#include "platform/LoginItem.h"
#include "platform/MachineInfo.h"
#include "platform/Pointer.h"
#include "platform/PowerAssertions.h"
#include "platform/PowerSources.h"
#include "platform/Scheduler.h"
#include "platform/Screens.h"
#include "platform/ScriptHost.h"
#include "platform/SmcTransport.h"
#include "platform/StatusItem.h"
#include "platform/SystemSounds.h"
#include "platform/ThermalServices.h"
#include "platform/UnixSignals.h"
#include "platform/UserDefaults.h"

namespace brimlight {

/// The ports that live as long as the process, borrowed. Whoever builds the graph hands parts of it on.
struct Platform
{
    Scheduler &scheduler;
    UserDefaults &defaults;
    FileWriter &files;
    Folders &folders;
    Log &log;
    Screens &screens;
    Pointer &pointer;
    UnixSignals &unixSignals;
    Appearance &appearance;
    HostStatistics &statistics;
    PowerSources &power;
    MachineInfo &machine;
    SmcTransport &smc;
    ThermalServices &thermal;
    LoginItem &loginItem;
    StatusItem &statusItem;
    AudioServer &audio;
    DisplayBrightness &brightness;
    DoNotDisturb &doNotDisturb;
    ScriptHost &scripts;
    PowerAssertions &powerAssertions;
    SystemSounds &sounds;
};

} // namespace brimlight
