#pragma once

#include "platform/MachineInfo.h"

#include <QString>

namespace brimlight::PersistentDenylistStore {

/// "unknown" when the system does not tell.
QString currentOSBuild(MachineInfo &machine);

/// Where the user defaults hold the hot spots of this chip, model and build: a list of texts. A new build
/// looks elsewhere and so calibrates anew.
QString storageKey(const QString &chip, const QString &model, const QString &osBuild);

} // namespace brimlight::PersistentDenylistStore
