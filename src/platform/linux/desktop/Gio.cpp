#include "platform/linux/desktop/Gio.h"

#include <dlfcn.h>

#include <optional>

namespace brimlight {
namespace {

template<typename Function>
bool find(void *library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function;
}

std::optional<Gio> load()
{
    void *const library = dlopen("libgio-2.0.so.0", RTLD_NOW | RTLD_LOCAL);
    if (!library)
        return std::nullopt;
    Gio gio{};
    const bool complete = find(library, "g_settings_schema_source_get_default", gio.schemaSource) &&
                          find(library, "g_settings_schema_source_lookup", gio.lookup) &&
                          find(library, "g_settings_schema_has_key", gio.hasKey) &&
                          find(library, "g_settings_schema_unref", gio.unrefSchema) &&
                          find(library, "g_settings_new_full", gio.newSettings) &&
                          find(library, "g_settings_get_boolean", gio.boolean) &&
                          find(library, "g_settings_get_string", gio.string) &&
                          find(library, "g_settings_set_string", gio.setString) &&
                          find(library, "g_settings_is_writable", gio.isWritable) &&
                          find(library, "g_settings_sync", gio.sync) &&
                          find(library, "g_signal_connect_data", gio.connect) &&
                          find(library, "g_signal_handler_disconnect", gio.disconnect) &&
                          find(library, "g_object_unref", gio.unref) && find(library, "g_free", gio.free);
    return complete ? std::optional(gio) : std::nullopt;
}

} // namespace

const Gio *Gio::library()
{
    static const std::optional<Gio> gio = load();
    return gio ? &*gio : nullptr;
}

} // namespace brimlight
