#include "platform/qt/DesktopSetting.h"

#include <QLibrary>

namespace ostrelum::qt_platform {
namespace {

/// What is used of GIO. It is loaded when it is first asked for: a desktop of another family may
/// not have it, and no start waits for it.
class Gio {
    QLibrary library_{"gio-2.0", 0};

    template <typename Function>
    void find(Function*& function, const char* name)
    {
        function = reinterpret_cast<Function*>(library_.resolve(name));
        complete = complete && function;
    }

public:
    Gio()
    {
        find(default_source, "g_settings_schema_source_get_default");
        find(lookup, "g_settings_schema_source_lookup");
        find(has_key, "g_settings_schema_has_key");
        find(release_schema, "g_settings_schema_unref");
        find(open, "g_settings_new");
        find(boolean, "g_settings_get_boolean");
        find(release, "g_object_unref");
    }

    bool complete = true;
    void* (*default_source)();
    void* (*lookup)(void* source, const char* schema_id, int recursive);
    int (*has_key)(void* schema, const char* key);
    void (*release_schema)(void* schema);
    void* (*open)(const char* schema_id);
    int (*boolean)(void* settings, const char* key);
    void (*release)(void* settings);
};

/// Asking for the value of one that is not there would end the program.
bool is_known(const Gio& gio, const char* schema_id, const char* key)
{
    void* source = gio.default_source();
    void* schema = source ? gio.lookup(source, schema_id, 1) : nullptr;
    if (!schema)
        return false;
    const bool known = gio.has_key(schema, key) != 0;
    gio.release_schema(schema);
    return known;
}

} // namespace

std::optional<bool> desktop_setting(const char* schema_id, const char* key)
{
    static const Gio gio;
    if (!gio.complete || !is_known(gio, schema_id, key))
        return std::nullopt;
    void* settings = gio.open(schema_id);
    const bool value = gio.boolean(settings, key) != 0;
    gio.release(settings);
    return value;
}

} // namespace ostrelum::qt_platform
