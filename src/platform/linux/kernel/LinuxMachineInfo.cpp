#include "platform/linux/kernel/LinuxMachineInfo.h"

#include "platform/linux/kernel/SmallFile.h"
#include "platform/linux/kernel/SysfsValue.h"

#include <QStringList>
#include <QSysInfo>

#include <array>

#include <sys/utsname.h>

namespace brimlight {
namespace {

std::optional<QString> presentText(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

/// The first processor's; all others are in the same file.
std::optional<QString> modelName(const QString &cpuInfo)
{
    constexpr qsizetype firstProcessor = 4096;
    const QByteArray content = smallFile(cpuInfo, firstProcessor).value_or(QByteArray());
    for (const QByteArray &line : content.split('\n')) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.first(colon).trimmed() == "model name")
            return presentText(QString::fromUtf8(line.sliced(colon + 1)).simplified());
    }
    return std::nullopt;
}

/// The texts of a property of the device tree.
QStringList deviceTreeTexts(const QString &property)
{
    return QString::fromUtf8(smallFile(property).value_or(QByteArray())).split(u'\0', Qt::SkipEmptyParts);
}

} // namespace

QString osVersionOfRelease(const QString &release)
{
    constexpr size_t count = 3;
    std::array<int, count> numbers{};
    QStringView rest(release);
    for (int &number : numbers) {
        qsizetype digits = 0;
        while (digits < rest.size() && rest.at(digits).isDigit())
            ++digits;
        number = rest.first(digits).toInt();
        if (digits == rest.size() || rest.at(digits) != u'.')
            break;
        rest = rest.sliced(digits + 1);
    }
    return QStringLiteral("Linux %1.%2.%3").arg(numbers[0]).arg(numbers[1]).arg(numbers[2]);
}

LinuxMachineInfo::LinuxMachineInfo(QString procRoot, QString sysRoot)
    : m_proc(std::move(procRoot))
    , m_sys(std::move(sysRoot))
{
}

std::optional<QString> LinuxMachineInfo::chip()
{
    if (auto name = modelName(m_proc + QStringLiteral("/cpuinfo")))
        return name;
    // From the most special to the most general: the board comes first, its chip last.
    const QStringList names = deviceTreeTexts(m_proc + QStringLiteral("/device-tree/compatible"));
    return names.isEmpty() ? std::nullopt : std::optional(names.last());
}

std::optional<QString> LinuxMachineInfo::model()
{
    QString product = sysfsText(smallFile(m_sys + QStringLiteral("/class/dmi/id/product_name")));
    if (!product.isEmpty())
        return product;
    const QStringList names = deviceTreeTexts(m_proc + QStringLiteral("/device-tree/model"));
    return names.isEmpty() ? std::nullopt : std::optional(names.first());
}

std::optional<QString> LinuxMachineInfo::osBuild()
{
    if (auto release = presentText(sysfsText(smallFile(m_proc + QStringLiteral("/sys/kernel/osrelease")))))
        return release;
    utsname names{};
    return uname(&names) == 0 ? presentText(QString::fromLocal8Bit(names.release)) : std::nullopt;
}

QString LinuxMachineInfo::osVersion()
{
    return osVersionOfRelease(osBuild().value_or(QString()));
}

QString LinuxMachineInfo::hostName()
{
    QString name = sysfsText(smallFile(m_proc + QStringLiteral("/sys/kernel/hostname")));
    return name.isEmpty() ? QSysInfo::machineHostName() : name;
}

} // namespace brimlight
