#include "grid/WidgetDefinition.h"

#include "core/EnumTexts.h"

namespace brimlight {
namespace {

constexpr EnumTexts<WidgetPermission, 5> permissionTexts{
    {{{WidgetPermission::calendar, u"calendar"},
      {WidgetPermission::reminders, u"reminders"},
      {WidgetPermission::weather, u"weather"},
      {WidgetPermission::microphone, u"microphone"},
      {WidgetPermission::accessibility, u"accessibility"}}}};

} // namespace

QString rawValue(WidgetPermission permission)
{
    return permissionTexts.text(permission);
}

} // namespace brimlight
