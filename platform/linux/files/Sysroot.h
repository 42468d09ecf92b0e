#pragma once

#include "platform/linux/files/AccessObserver.h"
#include "platform/linux/files/Descriptor.h"
#include "platform/linux/files/Resolve.h"
#include "platform/linux/files/SeenFiles.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace ostrelum::linux_platform {

/// Reads the files of a machine under its root folder: "/", or the folder of a recorded machine,
/// which no symbolic link leads out of. Paths are absolute, as the machine itself has them.
///
/// Nothing here throws once the root is open: what cannot be had, for whatever reason, is not
/// there. A device can vanish between two calls. Device nodes, pipes and sockets are never opened.
class Sysroot {
public:
    /// How a path is found under the root; by hand for tests.
    using Resolver = Descriptor (*)(int root, const std::string& path, LastLink last);

    /// Throws Failure if the path is no folder that can be opened.
    explicit Sysroot(const std::string& path, Resolver resolver = resolve_in_root);

    /// The same machine; the observer is called for each access from here on.
    Sysroot(const Sysroot& machine, std::shared_ptr<AccessObserver> observer);

    /// The same machine at one moment: what it and its copies are asked again they answer as they
    /// did the first time, and their observer is not called again.
    Sysroot at_one_moment() const;

    /// The root of that path; nothing if it is no folder.
    static std::optional<Sysroot> find(const std::string& path);

    /// This very machine, not a recorded one.
    bool is_live() const { return live_; }

    /// Why the system last refused a file that may well be there: the error number that says that
    /// too many are open, or that there is no memory. 0 if it never did, here or on a copy.
    int shortage() const { return *shortage_; }

    bool exists(const std::string& path) const;

    /// All bytes of a regular file, to its end whatever size it claims; nothing for one of more
    /// than `limit` bytes.
    std::optional<std::string> read(const std::string& path,
                                    std::size_t limit = default_limit) const;

    /// `size` bytes of a regular file from the byte `at` on; nothing if it has fewer.
    std::optional<std::string> read_piece(const std::string& path, std::uint64_t at,
                                          std::size_t size) const;

    /// A regular file, open for reading, for libraries that take a file and not its bytes. The
    /// observer is not called: whoever reads the file reports what it gave (report_answer).
    Descriptor open(const std::string& path) const;

    /// The first line of a file, or what stands before its first NUL: trimmed, valid UTF-8, not
    /// empty. Nothing for a file of more than 64 KiB: those that hold one value are far shorter.
    std::optional<std::string> text(const std::string& path) const;

    /// The whole number that is the first line of a file.
    std::optional<std::uint64_t> number(const std::string& path) const;

    /// The names in a folder, sorted so that "input10" comes after "input2".
    std::vector<std::string> list(const std::string& path) const;
    /// The same in no order, for whoever needs none of thousands.
    std::vector<std::string> list_unsorted(const std::string& path) const;

    /// The text of a symbolic link.
    std::optional<std::string> link(const std::string& path) const;

    /// Passes an answer that comes from no file on to the observer, if there is one.
    void report_answer(const std::string& list, const std::string& key,
                       const std::string& value) const;
    const std::shared_ptr<AccessObserver>& observer() const { return observer_; }

private:
    template <class Answer, class Ask>
    Answer once(SeenFiles::Kept<Answer> SeenFiles::*kind, const std::string& path, Ask ask) const;
    Descriptor find_place(const std::string& path, LastLink last) const;
    Descriptor checked(Descriptor file) const;

    static constexpr std::size_t default_limit = std::size_t{4} << 20;
    static constexpr std::size_t value_limit = std::size_t{64} << 10;

    std::shared_ptr<const Descriptor> root_;
    Resolver resolver_;
    bool live_ = false;
    std::shared_ptr<KernelFiles> kernel_files_ = std::make_shared<KernelFiles>();
    std::shared_ptr<int> shortage_ = std::make_shared<int>(0);
    std::shared_ptr<AccessObserver> observer_;
    /// None if each question is asked anew.
    std::shared_ptr<SeenFiles> seen_;
};

} // namespace ostrelum::linux_platform
