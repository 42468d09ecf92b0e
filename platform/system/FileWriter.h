#pragma once

#include <string>

namespace ostrelum::inline system {

/// Writes the files that the user asks for.
class FileWriter {
public:
    virtual ~FileWriter() = default;
    /// Gives the file of that full path (UTF-8) `bytes` as its whole content, and makes it where
    /// there is none. Throws Failure if that cannot be done; an earlier file is then as it was,
    /// unless it could only be written over.
    virtual void replace(const std::string& path, const std::string& bytes) = 0;
};

} // namespace ostrelum::inline system
