#include "sensors/PersistentDenylistStore.h"

namespace brimlight::PersistentDenylistStore {
namespace {

/// Blanks and points separate elsewhere.
QString sanitised(QString text)
{
    return text.replace(u' ', u'_').replace(u'.', u'_');
}

} // namespace

QString currentOSBuild(MachineInfo &machine)
{
    return machine.osBuild().value_or(QStringLiteral("unknown"));
}

QString storageKey(const QString &chip, const QString &model, const QString &osBuild)
{
    return QStringLiteral("Sorrelbrook.HotSpotDenylist.v1.") + sanitised(chip) + u'.' + sanitised(model) +
           u'.' + sanitised(osBuild);
}

} // namespace brimlight::PersistentDenylistStore
