#pragma once

#include "core/TraceLog.h"
#include "fakes/DirectFileWriter.h"
#include "fakes/FakeAudioServer.h"
#include "fakes/FakeDisplayBrightness.h"
#include "fakes/FakeHostStatistics.h"
#include "fakes/FakePowerSources.h"
#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"
#include "fakes/SwitchFakes.h"

#include <QTemporaryDir>

namespace brimlight::test {

/// A machine of fakes, with a support folder of its own.
struct FakePlatform
{
    FakePlatform() { folders.support = support.path(); }

    ManualScheduler scheduler;
    MemoryDefaults defaults;
    const QTemporaryDir support;
    FakeFolders folders;
    RecordingLog recorded;
    DirectFileWriter files{&recorded};
    FakeScreens screens;
    FakePointer pointer;
    FakeSignals unixSignals;
    FakeAppearance appearance;
    FakeHostStatistics statistics;
    FakePowerSources power;
    FakeMachine machine;
    FakeSmc smc;
    FakeThermal thermal;
    FakeLoginItem loginItem;
    FakeStatusItem statusItem;
    FakeAudioServer audio;
    FakeDisplayBrightness brightness;
    FakeDoNotDisturb doNotDisturb;
    FakeScriptHost scripts;
    FakePowerAssertions powerAssertions;
    FakeSounds sounds;
    Platform platform{scheduler,    defaults,    files,           folders,    recorded, screens,
                      pointer,      unixSignals, appearance,      statistics, power,    machine,
                      smc,          thermal,     loginItem,       statusItem, audio,    brightness,
                      doNotDisturb, scripts,     powerAssertions, sounds};
    TraceLog log{recorded, {}};
};

} // namespace brimlight::test
