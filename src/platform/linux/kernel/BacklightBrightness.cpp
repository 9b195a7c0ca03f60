#include "platform/linux/kernel/BacklightBrightness.h"

#include "platform/linux/kernel/SmallFile.h"
#include "platform/linux/kernel/SysfsValue.h"

#include <QDir>

#include <algorithm>

namespace brimlight {
namespace {

/// The lower, the better.
int rank(const QString &folder)
{
    const QString type = sysfsText(smallFile(folder + QStringLiteral("/type")));
    if (type == u"firmware")
        return 0;
    return type == u"platform" ? 1 : 2;
}

} // namespace

BacklightBrightness::BacklightBrightness(const QString &sys)
    : m_folder(sys + QStringLiteral("/class/backlight"))
{
}

std::optional<double> BacklightBrightness::linearBrightness()
{
    std::optional<double> brightness = read();
    if (!brightness) {
        choose();
        brightness = read();
    }
    return brightness;
}

void BacklightBrightness::choose()
{
    m_chosen.clear();
    int best = 3;
    for (const QString &name : QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString folder = m_folder + u'/' + name;
        if (const int own = rank(folder); own < best) {
            best = own;
            m_chosen = folder;
        }
    }
}

std::optional<double> BacklightBrightness::read() const
{
    if (m_chosen.isEmpty())
        return std::nullopt;
    const auto now = sysfsNumber(smallFile(m_chosen + QStringLiteral("/brightness")));
    const auto most = sysfsNumber(smallFile(m_chosen + QStringLiteral("/max_brightness")));
    if (!now || !most || *most <= 0)
        return std::nullopt;
    return std::clamp(static_cast<double>(*now) / static_cast<double>(*most), 0.0, 1.0);
}

} // namespace brimlight
