#pragma once

#include "platform/system/Shell.h"

#include <string>

namespace ostrelum::linux_platform {

/// The named values that live between runs, in one text file that may be edited by hand
/// (SettingsText.h describes its form). The file is read anew at every operation, so that a change
/// by hand while the program runs is seen, and not undone by the next write.
class SettingsStore {
public:
    /// `path` may be empty where the user has no folder for it: then every operation fails.
    explicit SettingsStore(std::string path) : path_(std::move(path)) {}

    /// Throws Failure if there is no such value, or no reading of the file.
    RegValue read(const std::string& full_name) const;

    /// Throws Failure if the value cannot be stored; the file is then as it was. A file that cannot
    /// be read is never replaced.
    void write(const std::string& full_name, const RegValue& value) const;

private:
    std::string path_;
};

} // namespace ostrelum::linux_platform
