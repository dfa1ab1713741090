// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/base/files/file_name.h>
#include <marlin/base/files/file_object.h>
#include <marlin/core/export.h>
#include <marlin/settings/section.h>

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace MARLINSUITE::detail {
struct SettingsOutcome;
}

/// A settings file in memory: an ordered list of sections, read from and written to a text
/// file. Names of sections are compared ignoring case; `AddSection` and reading keep them
/// unique. Neither copied nor assigned. The file is open only within `Open` and `Save`.
/// The format is described in docs/formats/settings.md.
///
/// @code
/// IniFile file;
/// file["General"]["Color"] << 255;
/// assert(file.Text() == "[General]\r\nColor = 255\r\n\r\n");
/// IniFile read;
/// ErrorString error = read.OpenText(file.Text());
/// assert(error.Empty() && read.HasSection("GENERAL"));
/// error = read.Open(std::string("/no/such/file.ini"));
/// assert(error.Text() == "Error opening \"/no/such/file.ini\" for reading!");
/// @endcode
class MARLIN_API IniFile {
public:
    /// Returned by a const look-up of a missing section: no name, no keys, not valid.
    static const Section m_ErrorSection;

    IniFile() = default;
    /// Opens the file; its result is dropped, so test `Empty()`.
    explicit IniFile(const std::string& path);
    IniFile(const IniFile&) = delete;
    IniFile& operator=(const IniFile&) = delete;

    /// Replaces the contents by the sections of the file. Fails when the path is empty, when the
    /// file cannot be read to its end, at a header "[]" and at a second section of one name; the
    /// sections completed before stay.
    ErrorString Open(const std::string& path);
    ErrorString Open(const FileName& path);
    /// The same from a text in memory.
    ErrorString OpenText(std::string_view text);
    /// Writes all sections, replacing the file as a whole. Fails without sections, when the file
    /// cannot be written, and where it would read back as other sections or keys: a section
    /// without a name, or with that of another one, a line feed anywhere, "]" in a section's name,
    /// a key's name that begins with "[" or holds ";" or "=". An old file is then unchanged, and
    /// the result's `Cause()` names the file and the system's reason, or section and key.
    ErrorString Save(const std::string& path) const;
    ErrorString Save(const FileName& path) const;
    /// A key by its position in a section and that of the section.
    struct KeyPlace {
        int Section = 0;
        int Key = 0;
        bool operator==(const KeyPlace&) const noexcept = default;
    };
    /// The keys that lose something when the text is read back: a value that holds ";", blanks at
    /// the ends of name or value or at the end of a comment, the value of a key without a name.
    [[nodiscard]] std::vector<KeyPlace> LosingKeys() const;
    /// The text that `Save` writes.
    [[nodiscard]] std::string Text() const;

    /// Replaces the contents by those of a file object; true.
    bool Open(const FileObject& file);
    /// Stores every named key into the file object in place of its entries of that name; true. Of
    /// several keys of one name the first stays the first, which look-ups find.
    bool Save(FileObject& file) const;

    /// The sections in their order, to walk over.
    [[nodiscard]] const std::deque<Section>& Sections() const noexcept { return m_Sections; }
    void Clear() noexcept { m_Sections.clear(); }
    [[nodiscard]] bool Empty() const noexcept { return m_Sections.empty(); }
    [[nodiscard]] int NumSections() const noexcept { return static_cast<int>(m_Sections.size()); }

    /// Only the name of a section given is compared.
    [[nodiscard]] bool HasSection(const Section& section) const noexcept;
    [[nodiscard]] bool HasSection(const char* name) const noexcept;
    [[nodiscard]] bool HasSection(const std::string& name) const noexcept;

    /// Puts a copy in the place of the section of that name, or at the end. False, and nothing
    /// changed, for a section without a name.
    bool AddSection(const Section& section);

    /// The section of that name; when there is none, an empty one is appended.
    Section& operator[](const std::string& name);
    Section& operator[](const char* name);
    /// The section of that name, or `m_ErrorSection`.
    [[nodiscard]] const Section& operator[](const std::string& name) const noexcept;
    [[nodiscard]] const Section& operator[](const char* name) const noexcept;
    /// The position must lie in 0 to `NumSections()` - 1.
    [[nodiscard]] Section& operator[](int position) noexcept;
    [[nodiscard]] const Section& operator[](int position) const noexcept;

    /// Removes the first section of that name; false when there is none.
    bool RemoveSection(const Section& section);
    bool RemoveSection(const char* name);
    bool RemoveSection(const std::string& name);

    /// False when no section has the old name or one has the new name.
    bool RenameSection(const std::string& from, const std::string& to);
    bool RenameSection(const char* from, const char* to);

private:
    ErrorString Finish(const MARLINSUITE::detail::SettingsOutcome& outcome,
                       const std::string& path);

    std::deque<Section> m_Sections;
};
