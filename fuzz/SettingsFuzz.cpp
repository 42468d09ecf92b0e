#include "fuzz/Target.h"
#include "platform/linux/formats/SettingsText.h"

/// Any bytes as a settings file: reading ends, and a value written into them can be read back
/// and costs no line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ostrelum;
    using namespace ostrelum::linux_platform;
    const auto lines = [](const std::string& all) {
        return std::count(all.begin(), all.end(), '\n');
    };
    const std::string text(data, data + size);
    const SettingName name{"HKEY_CURRENT_USER\\Key", "Value"};
    for (const RegValue& value : {RegValue(255U), RegValue("a \"b\" \\ # c\n"), RegValue("")}) {
        const std::string changed = with_setting(text, name, value);
        if (find_setting(changed, name) != value || lines(changed) < lines(text))
            std::abort();
    }
    find_setting(text, name);
    if (const auto split = split_setting_name(text))
        require(std::string(split->key) + "\\" + std::string(split->name) == text);
    return 0;
}
