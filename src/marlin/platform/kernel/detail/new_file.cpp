// SPDX-License-Identifier: MIT
#include <marlin/core/number_text.h>
#include <marlin/platform/kernel/detail/new_file.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace PLATFORM::detail {

namespace {

// Other processes cannot have the name by chance, and other threads not at all.
std::string UnusedName() {
    static std::atomic<unsigned int> counter = 0;
    std::string name = ".marlin-";
    MARLINSUITE::AppendNumber(name, static_cast<unsigned int>(::getpid()));
    name += '-';
    MARLINSUITE::AppendNumber(name, counter++);
    return name + ".tmp";
}

// A rename reaches the disk with its folder. Some file systems cannot sync a folder, and the
// rename has been made: a failure changes nothing.
void SyncFolder(const std::string& folder) noexcept {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        ::fsync(descriptor);
        ::close(descriptor);
    }
}

}  // namespace

NewFile::~NewFile() {
    if (!m_Path.empty()) {
        ::unlink(m_Path.c_str());
    }
}

int NewFile::Create(unsigned int mode) {
    constexpr int tries = 100;  // a crashed process of the same number may have left files
    int error = EEXIST;
    for (int i = 0; i < tries && error == EEXIST; ++i) {
        std::string path = FolderOf(m_Target) + UnusedName();
        error = m_File.Create(path, mode);
        if (error == 0) {
            m_Path = std::move(path);
        }
    }
    return error;
}

int NewFile::TakePlace() {
    if (const int error = m_File.Close(); error != 0) {
        return error;
    }
    if (std::rename(m_Path.c_str(), m_Target.c_str()) != 0) {
        return errno;
    }
    m_Path.clear();
    SyncFolder(FolderOf(m_Target));
    return 0;
}

}  // namespace PLATFORM::detail
