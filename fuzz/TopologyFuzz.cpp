#include "fuzz/Target.h"
#include "platform/linux/devices/BlockDevices.h"

#include <map>
#include <set>

using namespace ostrelum;
using namespace ostrelum::linux_platform;

namespace {

namespace fs = std::filesystem;

using Slaves = std::map<std::string, std::set<std::string>>;

/// The devices that nothing lies under, of all that can be reached.
std::set<std::string> bottoms(const Slaves& slaves, const std::string& top)
{
    std::set<std::string> reached{top}, disks;
    for (std::size_t before = 0; before != reached.size();) {
        before = reached.size();
        for (const std::string& name : std::set(reached))
            reached.insert(slaves.at(name).begin(), slaves.at(name).end());
    }
    for (const std::string& name : reached) {
        if (slaves.at(name).empty())
            disks.insert(name);
    }
    return disks;
}

/// Each pair of bytes says which device lies on which.
Slaves made_slaves(const std::uint8_t* data, std::size_t size)
{
    constexpr int devices = 12;
    const auto name = [](int number) { return "dm-" + std::to_string(number % devices); };
    Slaves slaves;
    for (int number = 0; number < devices; ++number)
        slaves[name(number)];
    for (std::size_t i = 0; i + 1 < std::min<std::size_t>(size, 80); i += 2)
        slaves[name(data[i])].insert(name(data[i + 1]));
    return slaves;
}

} // namespace

/// Any bytes as devices that lie on each other, also in circles: the disks under each are those at
/// the ends of all ways down.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Slaves slaves = made_slaves(data, size);
    const TemporaryFolder folder;
    fs::create_directories(folder / "sys/class");
    fs::create_symlink("../block", folder / "sys/class/block");
    for (const auto& [name, below] : slaves) {
        fs::create_directories(folder / ("sys/block/" + name + "/slaves"));
        for (const std::string& slave : below)
            fs::create_symlink("../../" + slave,
                               folder / ("sys/block/" + name + "/slaves/" + slave));
    }
    const Sysroot root(folder / "");
    for (const auto& [name, below] : slaves) {
        require(DeviceStacks(root, {name}).disks() == bottoms(slaves, name));
    }
    return 0;
}
