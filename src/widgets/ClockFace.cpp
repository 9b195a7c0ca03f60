#include "widgets/ClockFace.h"

#include <QLocale>

namespace brimlight {
namespace {

/// The option if it is one of the known values, else the first of them.
QString known(const std::optional<QString> &stored, const QStringList &values)
{
    return stored && values.contains(*stored) ? *stored : values.first();
}

} // namespace

QString ClockFace::time() const
{
    return settings().hourMinute(now());
}

QString ClockFace::seconds() const
{
    if (size() == WidgetSize::small || !settings().showSeconds())
        return {};
    return now().toLocalTime().toString(QStringLiteral("ss"));
}

QString ClockFace::meridiem() const
{
    return size() != WidgetSize::small ? settings().meridiem(now()) : QString();
}

QString ClockFace::date() const
{
    if (size() == WidgetSize::small)
        return {};
    return QLocale().toString(now().toLocalTime(), QStringLiteral("dddd, d MMM"));
}

int ClockFace::fontSize() const
{
    switch (size()) {
    case WidgetSize::small:
        return 20;
    case WidgetSize::banner:
    case WidgetSize::wideTall:
        return 34;
    case WidgetSize::tall:
    case WidgetSize::wide:
    case WidgetSize::large:
    case WidgetSize::huge:
        break;
    }
    return 28;
}

QString ClockFace::font() const
{
    return known(option(QStringLiteral("font")),
                 {QStringLiteral("rounded"), QStringLiteral("monospaced"), QStringLiteral("serif")});
}

QString ClockFace::style() const
{
    return known(option(QStringLiteral("style")),
                 {QStringLiteral("gradient"), QStringLiteral("solid"), QStringLiteral("monochrome")});
}

} // namespace brimlight
