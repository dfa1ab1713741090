// SPDX-License-Identifier: MIT
#include <marlin/platform/kernel/detail/new_file.h>
#include <marlin/platform/kernel/detail/path_links.h>
#include <marlin/platform/kernel/detail/test_levers.h>

#include <array>
#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace PLATFORM::detail {

namespace {

// Nobody can guess the name, to put a file or a link of the own there first.
int MakeName(std::string& name) {
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz012345";
    std::array<unsigned char, 16> random{};
    if (::getentropy(random.data(), random.size()) != 0) {
        return errno;
    }
    name = ".marlin-";
    for (const unsigned char byte : random) {
        name += letters[byte % letters.size()];
    }
    name += ".tmp";
    return 0;
}

// Calls `make` with unused paths in the folder until one is made; `path` is that one.
template <class Make>
int MakeUnderNewName(const std::string& folder, std::string& path, const Make& make) {
    std::string name;
    int error = EEXIST;
    for (int tries = 0; tries < 3 && error == EEXIST; ++tries) {
        error = MakeName(name);
        if (error == 0) {
            error = make(folder + name);
        }
    }
    if (error == 0) {
        path = folder + name;
    }
    return error;
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
    const std::string folder = FolderOf(m_Target);
    if (AreUnnamedFilesAllowed() && m_File.CreateUnnamed(folder, mode) == 0) {
        return 0;
    }
    return MakeUnderNewName(folder, m_Path,
                            [&](const std::string& path) { return m_File.Create(path, mode); });
}

// A link replaces nothing, so a file that takes the place of another one has a name of its own for
// the moment before the rename.
int NewFile::Name() {
    if (!m_Path.empty()) {
        return 0;
    }
    return MakeUnderNewName(FolderOf(m_Target), m_Path,
                            [&](const std::string& path) { return m_File.LinkTo(path); });
}

int NewFile::TakePlace() {
    if (const int error = Name(); error != 0) {
        return error;
    }
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
