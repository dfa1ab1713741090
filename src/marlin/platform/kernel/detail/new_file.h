// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/kernel/detail/file.h>

namespace PLATFORM::detail {

/// A new file in the folder of another one, the target, whose name it takes in the end. Until then
/// it has no name where the file system can do so, and goes with the process, however that ends;
/// elsewhere it has a name of random letters and is removed when it is destroyed. Results as for
/// `File`.
class NewFile {
public:
    explicit NewFile(std::string target) : m_Target(std::move(target)) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile();

    /// Makes the file, for `Contents` to be written.
    [[nodiscard]] int Create(unsigned int mode);
    [[nodiscard]] File& Contents() noexcept { return m_File; }

    /// Closes the file and puts it in the place of the target, which any other process sees
    /// either as it was or whole. On failure the target stays.
    [[nodiscard]] int TakePlace();

private:
    [[nodiscard]] int Name();

    std::string m_Target;
    std::string m_Path;  // empty while there is nothing to remove
    File m_File;
};

}  // namespace PLATFORM::detail
