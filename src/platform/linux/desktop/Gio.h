#pragma once

#include <gio/gio.h>

namespace brimlight {

/// What the program uses of GIO. The library is loaded when it is first needed and not with the program: it
/// costs milliseconds and a megabyte, and most sessions never ask for it.
struct Gio
{
    /// Null where it is not installed. The first call loads it, so not on the main thread; it stays loaded.
    static const Gio *library();

    decltype(&g_settings_schema_source_get_default) schemaSource;
    decltype(&g_settings_schema_source_lookup) lookup;
    decltype(&g_settings_schema_has_key) hasKey;
    decltype(&g_settings_schema_unref) unrefSchema;
    decltype(&g_settings_new_full) newSettings;
    decltype(&g_settings_get_boolean) boolean;
    decltype(&g_settings_get_string) string;
    decltype(&g_settings_set_string) setString;
    decltype(&g_settings_is_writable) isWritable;
    decltype(&g_settings_sync) sync;
    decltype(&g_signal_connect_data) connect;
    decltype(&g_signal_handler_disconnect) disconnect;
    decltype(&g_object_unref) unref;
    decltype(&g_free) free;
};

} // namespace brimlight
