#pragma once

#include <functional>
#include <optional>
#include <string>

namespace ostrelum::inline system {

/// What the save dialog is asked for.
struct OpenFileName {
    std::string title;
    /// Pairs of a label and a pattern, each ended by a NUL character.
    std::string filter;
    /// Filter chosen at first, counted from 1.
    int filter_index = 1;
    /// Name offered at first, without folder and without extension.
    std::string file;
    /// Folder shown at first.
    std::string initial_dir;
    /// The file that will really be written for a name as typed and a filter index: the dialog asks
    /// before replacing that file.
    std::function<std::string(const std::string& path, int filter_index)> target;
};

/// What the user chose.
struct ChosenFile {
    /// Full path as typed or picked, UTF-8.
    std::string path;
    /// Filter in force, counted from 1.
    int filter_index = 1;
};

/// The desktop's own dialog for saving a file.
class SaveDialog {
public:
    virtual ~SaveDialog() = default;
    /// Runs the dialog modally; nothing if the user cancelled.
    virtual std::optional<ChosenFile> GetSaveFileNameA(const OpenFileName& request) = 0;
};

} // namespace ostrelum::inline system
