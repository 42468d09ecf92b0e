#pragma once

#include "platform/linux/files/AccessObserver.h"
#include "platform/linux/files/Sysroot.h"
#include "platform/linux/recording/Recording.h"

#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// An observer that keeps what it is called with, so that a machine made of it answers the same
/// questions in the same way: the files that were read, the names that were listed, and the links
/// that lay on the way. What was read twice is kept as it was the first time.
class Recorder : public AccessObserver {
public:
    /// `files` are the machine's, to follow paths in.
    explicit Recorder(Sysroot files) : files_(std::move(files)) {}

    void on_exists(const std::string& path) override;
    void on_read(const std::string& path, const std::optional<std::string>& content) override;
    void on_read_piece(const std::string& path, std::uint64_t at,
                       const std::string& bytes) override;
    void on_list(const std::string& path, const std::vector<std::string>& names) override;
    void on_link(const std::string& path) override;
    void on_answer(const std::string& list, const std::string& key,
                   const std::string& value) override;

    const Recording& recording() const { return recording_; }

private:
    std::optional<std::string> walk(const std::string& path, LastLink last);
    std::optional<std::string> link_at(const std::string& place, const std::string& asked);
    void keep(const std::string& place, PlaceKind kind, const std::string& content,
              const std::string& asked);

    Sysroot files_;
    Recording recording_;
};

} // namespace ostrelum::linux_platform
