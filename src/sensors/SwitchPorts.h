#pragma once

#include "platform/Appearance.h"
#include "platform/PowerAssertions.h"
#include "platform/ScriptHost.h"
#include "platform/SystemSounds.h"

#include <QObject>
#include <QtQmlIntegration>

namespace brimlight {

/// What switches this machine, for the widgets that do so.
class SwitchPorts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    SwitchPorts(ScriptHost &scripts, PowerAssertions &powerAssertions, SystemSounds &sounds,
                const Appearance &appearance, QObject *parent = nullptr)
        : QObject(parent)
        , scripts(scripts)
        , powerAssertions(powerAssertions)
        , sounds(sounds)
        , appearance(appearance)
    {
    }

    ScriptHost &scripts;
    PowerAssertions &powerAssertions;
    SystemSounds &sounds;
    const Appearance &appearance;
};

} // namespace brimlight
