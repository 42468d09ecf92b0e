#include "platform/linux/formats/Mounts.h"

#include "sources/Utf8.h"

#include <cstdio>
#include <libmount.h>
#include <memory>
#include <sys/sysmacros.h>

namespace ostrelum::linux_platform {
namespace {

std::string text_of(const char* text)
{
    return text ? made_valid_utf8(text) : std::string();
}

std::string device_of(libmnt_fs* line)
{
    const dev_t number = mnt_fs_get_devno(line);
    return number ? std::to_string(major(number)) + ":" + std::to_string(minor(number)) : "";
}

Mount mount_of(libmnt_fs* line)
{
    return {.id = mnt_fs_get_id(line),
            .parent = mnt_fs_get_parent_id(line),
            .device = device_of(line),
            .root = text_of(mnt_fs_get_root(line)),
            .target = text_of(mnt_fs_get_target(line)),
            .type = text_of(mnt_fs_get_fstype(line)),
            .source = text_of(mnt_fs_get_source(line))};
}

/// A line that cannot be read is passed over, and the reading goes on.
int pass_over(libmnt_table*, const char*, int)
{
    return 1;
}

struct Unref {
    void operator()(libmnt_table* table) const { mnt_unref_table(table); }
    void operator()(libmnt_iter* walk) const { mnt_free_iter(walk); }
    void operator()(FILE* stream) const { std::fclose(stream); }
};

} // namespace

std::vector<Mount> parse_mounts(const std::string& table)
{
    std::vector<Mount> mounts;
    std::string bytes = table;
    const std::unique_ptr<FILE, Unref> stream(
        bytes.empty() ? nullptr : fmemopen(bytes.data(), bytes.size(), "r"));
    const std::unique_ptr<libmnt_table, Unref> lines(mnt_new_table());
    const std::unique_ptr<libmnt_iter, Unref> walk(mnt_new_iter(MNT_ITER_FORWARD));
    if (!stream || !lines || !walk)
        return mounts;
    mnt_table_set_parser_errcb(lines.get(), pass_over);
    if (mnt_table_parse_stream(lines.get(), stream.get(), "mounts") != 0)
        return mounts;
    libmnt_fs* line = nullptr;
    while (mnt_table_next_fs(lines.get(), walk.get(), &line) == 0)
        mounts.push_back(mount_of(line));
    return mounts;
}

} // namespace ostrelum::linux_platform
