// SPDX-License-Identifier: MIT
// Any bytes are read as a palette file without harm: the result is an ascending table that a
// color table file holds, or a message and the table as it was.
#include "require.h"
#include <marlin/base/colors/palette_import.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file that lives in memory only, under a path of its own.
class MemoryFile {
public:
    MemoryFile(const std::uint8_t* data, std::size_t size) : m_File(memfd_create("palette", 0)) {
        Require(m_File >= 0);
        Require(write(m_File, data, size) == static_cast<ssize_t>(size));
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_File); }

    [[nodiscard]] std::string Path() const { return "/proc/self/fd/" + std::to_string(m_File); }

private:
    int m_File;
};

void RequireKept(const ColorTable& table) {
    FileObject file;
    ColorTable again;
    Require(table.FileSave(file) && again.FileOpen(file));
    Require(again.NumEntries() == table.NumEntries());
    Require(again.BelowColor() == table.BelowColor());
    for (int i = 0; i < table.NumEntries(); ++i) {
        Require(i == 0 || table.EntryValue(i - 1) <= table.EntryValue(i));
        Require(again.EntryValue(i) == table.EntryValue(i));
        Require(again.EntryColor(i) == table.EntryColor(i));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const MemoryFile file(data, size);
    ColorTable table;
    table.AddEntry(-1.5, 0x010203);
    if (ImportPalette(file.Path(), table).Empty()) {
        RequireKept(table);
    } else {
        Require(table.NumEntries() == 1 && table.EntryColor(0) == 0x010203);
    }
    return 0;
}
