#include "platform/memory/MemorySystem.h"

#include <algorithm>
#include <array>

namespace ostrelum::memory_platform {
namespace {

template <class Map>
const auto& found(const Map& map, const typename Map::key_type& key)
{
    const auto row = map.find(key);
    if (row == map.end())
        throw Failure("there is none");
    return row->second;
}

/// With at least so many digits.
std::string digits(int number, std::size_t count)
{
    std::string text = std::to_string(number);
    return text.size() < count ? std::string(count - text.size(), '0') + text : text;
}

int days_of(const Date& date)
{
    constexpr std::array<int, 12> days{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (date.year % 4 == 0 && date.year % 100 != 0) || date.year % 400 == 0;
    return days[static_cast<std::size_t>(date.month - 1)] + (date.month == 2 && leap ? 1 : 0);
}

} // namespace

RegValue MemoryShell::RegRead(const std::string& name)
{
    return found(store_.values, name);
}

void MemoryShell::RegWrite(const std::string& name, const RegValue& value, const std::string& type)
{
    const bool text = std::holds_alternative<std::string>(value);
    if (store_.read_only || type != (text ? "REG_SZ" : "REG_DWORD"))
        throw Failure("the value cannot be written");
    store_.values[name] = value;
    store_.writes.push_back(name);
}

std::string MemoryShell::SpecialFolders(const std::string& name)
{
    return found(store_.folders, name);
}

std::optional<Registry::Key> MemoryRegistry::RegOpenKeyA(std::uint32_t root,
                                                         const std::string& path)
{
    const bool known =
        std::ranges::any_of(values, [&](const auto& value) { return value.first.first == path; });
    if (root != local_machine_root || !known)
        return std::nullopt;
    open[++last_] = path;
    return last_;
}

std::optional<std::size_t> MemoryRegistry::RegQueryValueExA(Key key, const std::string& name,
                                                            std::uint32_t type,
                                                            std::span<std::uint8_t> buffer)
{
    const auto value = values.find({open.at(key), name});
    if (value == values.end() || type != binary_type || value->second.size() > buffer.size())
        return std::nullopt;
    std::ranges::copy(value->second, buffer.begin());
    return value->second.size();
}

void MemoryRegistry::RegCloseKey(Key key)
{
    open.erase(key);
}

void MemoryClipboard::Clear()
{
    if (fails)
        throw Failure("no clipboard");
    text.reset();
}

void MemoryClipboard::SetText(const std::string& new_text)
{
    if (fails)
        throw Failure("no clipboard");
    text = new_text;
}

std::optional<ChosenFile> MemorySaveDialog::GetSaveFileNameA(const OpenFileName& request)
{
    requests.push_back(request);
    return answer;
}

std::string MemoryRegional::short_date(const Date& date)
{
    if (date.year < 1 || date.month < 1 || date.month > 12 || date.day < 1 ||
        date.day > days_of(date))
        throw Failure("no such day");
    return digits(date.day, 2) + "/" + digits(date.month, 2) + "/" + digits(date.year, 4);
}

std::string MemoryRegional::long_time(const TimeOfDay& time)
{
    if (time.hour > 23 || time.minute > 59 || time.second > 59 ||
        std::min({time.hour, time.minute, time.second}) < 0)
        throw Failure("no such time");
    return digits(time.hour, 2) + ":" + digits(time.minute, 2) + ":" + digits(time.second, 2);
}

int MemorySystemApi::GetSystemMetrics(int index)
{
    const auto metric = metrics.find(index);
    return metric == metrics.end() ? 0 : metric->second;
}

std::string MemorySystemApi::Environ(const std::string& name)
{
    const auto value = environment.find(name);
    return value == environment.end() ? "" : value->second;
}

int MemorySystemApi::GetAttr(const std::string& path)
{
    return found(attributes, path);
}

void MemorySystemApi::End()
{
    ended = true;
    throw ProcessEnded();
}

} // namespace ostrelum::memory_platform
