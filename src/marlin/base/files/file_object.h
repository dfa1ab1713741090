// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>
#include <marlin/platform/text/c_string.h>

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The position of a walk over a `FileObject`: a section, and an entry of the section being
/// walked. One cursor serves both walks at once.
struct FobjSection {
    std::size_t Section = 0;
    std::size_t MapSection = 0;
    std::size_t Entry = 0;
};

/// A settings store that can be read from a file, filled, walked and written: an ordered list
/// of sections, each an ordered list of (key, value) entries. Names are compared ignoring
/// case. Its files are settings files; their comments are not kept. A value.
///
/// @code
/// FileObject file;
/// file.SetEntry("ColorTable", "Below", "255", FileObject::REPLACE);
/// CString value;
/// const bool found = file.GetEntry("COLORTABLE", "below", value);
/// assert(found && value == "255");
/// const bool opened = file.FileOpen("/no/such/table.col");
/// assert(!opened && !ErrorString::LastError().Empty());
/// @endcode
class MARLIN_API FileObject {
public:
    FileObject() = default;
    FileObject(const FileObject&) = default;
    FileObject(FileObject&&) = default;
    FileObject& operator=(const FileObject&) = default;
    FileObject& operator=(FileObject&&) = default;

    virtual ~FileObject();

    /// The treatment by `SetEntry` of an entry whose key the section holds already.
    enum MODE : int {
        REPLACE = 0,  ///< Gives the first such entry the new value.
        APPEND = 1,   ///< Stores it after the others; look-ups find the first. So does any
                      ///< other number.
    };

    /// Stores one entry, in a new section at the end when there is none of that name. False,
    /// and nothing stored, for an empty section name or key.
    virtual bool SetEntry(const CString& section, const CString& key, const CString& value,
                          int mode);

    /// Replaces the contents by those of a settings file. False when the file cannot be read or
    /// is no settings file; the object is then empty and `ErrorString::LastError()` says why.
    /// Entries stay in the order of the file, several of one key included; lines without a key
    /// and comments are dropped, sections without entries are kept.
    /// `flags` are the open flags of the platform's file class; the file is always read whole
    /// and shared with others, so they change nothing.
    bool FileOpen(const CString& path, unsigned int flags = 0);
    /// Writes a settings file, replacing an existing one whole. False when it cannot be written, or
    /// would read back as other sections or keys as `IniFile::Save` says, with the cause in
    /// `ErrorString::LastError()`; the old file is then unchanged.
    bool FileSave(const CString& path, unsigned int flags = 0) const;

    /// The walk over the sections in their order; each call that returns true yields a name.
    bool GetFirstSectionEntry(FobjSection& cursor, CString& section) const;
    bool GetNextSectionEntry(FobjSection& cursor, CString& section) const;
    /// The walk over the entries of one section; a missing section yields none.
    bool GetFirstMapEntry(FobjSection& cursor, const CString& section, CString& key,
                          CString& value) const;
    bool GetNextMapEntry(FobjSection& cursor, CString& key, CString& value) const;

    [[nodiscard]] bool HasSection(const CString& section) const;
    /// The value of the first entry of that key; false, and the target unchanged, for none.
    bool GetEntry(const CString& section, const CString& key, CString& value) const;
    /// Removes every entry of these keys from a section; what it does not hold is passed over.
    void RemoveEntries(const CString& section, const std::vector<CString>& keys);
    /// False when there is no such section.
    bool RemoveSection(const CString& section);
    void Clear();

private:
    class FileSink;
    struct Entry {
        std::string Key;
        std::string Value;
    };
    struct NamedSection {
        std::string Name;
        std::deque<Entry> Entries;
        std::unordered_map<std::string, std::size_t> FirstOfKey;  // by lower-case name
    };

    [[nodiscard]] std::string Text() const;
    [[nodiscard]] const NamedSection* FindSection(std::string_view name) const;
    NamedSection& SectionOrNew(std::string_view name);
    static void Store(NamedSection& section, std::string_view key, std::string_view value,
                      bool replace);

    std::deque<NamedSection> m_Sections;
    std::unordered_map<std::string, std::size_t> m_SectionOfName;  // by lower-case name
};
