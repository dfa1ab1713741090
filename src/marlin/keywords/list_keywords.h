// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/keywords/list_keyword.h>

#include <string>
#include <vector>

/// The keywords whose choices the data file "Keywords" lists, in the order of the file. A table
/// reads the file at its first look-up, wherever `DataSearch` then finds it, and never again; a
/// copy of a table that has read it does not either. A file that is missing or cannot be read
/// makes an empty table; nothing reports it. docs/formats/keywords.md describes the file.
///
/// @code
/// CListKeyword* const clients = CListKeywords::Get().GetListKeyword("project client");
/// const std::string first = clients ? clients->GetValue(0) : "";
/// @endcode
class MARLIN_API CListKeywords {
public:
    CListKeywords() = default;
    CListKeywords(const CListKeywords&) = default;
    CListKeywords(CListKeywords&&) = default;
    CListKeywords& operator=(const CListKeywords&) = default;
    CListKeywords& operator=(CListKeywords&&) = default;
    virtual ~CListKeywords();

    /// The table of the process, made at the first call. Its look-ups are for one thread at a
    /// time, the first one included.
    [[nodiscard]] static CListKeywords& Get();

    /// The keyword of that name, case and all, or null. The table keeps the keyword as long as it
    /// lives.
    [[nodiscard]] CListKeyword* GetListKeyword(const std::string& name);
    /// Null for a position that the table does not have.
    [[nodiscard]] CListKeyword* GetListKeyword(int i);

protected:
    /// Reads the file unless that was done before.
    void CheckInit();

private:
    bool m_ToLoad = true;
    std::vector<CListKeyword> m_ListKeywords;
};
