// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/base/error_string.h>
#include <marlin/core/export.h>

#include <map>
#include <string>
#include <vector>

/// The errors of plots: for each plot's name (its context) a list, in the order of adding. Names
/// are compared byte by byte. A name has an entry from the first `operator[]` until it is
/// cleared, even while its list is empty. The process has one instance, which exists before any
/// static object of a host and outlives them all; copies are values. For one thread at a time.
///
/// @code
/// PlotErrorReporter& errors = PlotErrorReporter::Get();
/// errors["Chart 17"].emplace_back("no soundings");
/// assert(!errors.NoErrors("Chart 17"));
/// errors.Clear("Chart 17");
/// @endcode
class MARLIN_API PlotErrorReporter {
public:
    [[nodiscard]] static PlotErrorReporter& Get() noexcept { return m_GlobalReporter; }

    /// True when the name has no entry; an entry with an empty list counts as one.
    [[nodiscard]] bool NoErrors(const std::string& context) const {
        return m_Errors.find(context) == m_Errors.end();
    }
    /// The names that have an entry, ascending.
    [[nodiscard]] std::vector<std::string> GetContexts() const;

    /// The errors of that name, for reading and changing. Makes an empty entry when there is
    /// none. The reference is valid until the entry is cleared.
    [[nodiscard]] std::vector<ErrorString>& operator[](const std::string& context) {
        return m_Errors[context];
    }

    void Clear(const std::string& context) { m_Errors.erase(context); }
    void Clear() noexcept { m_Errors.clear(); }

private:
    PlotErrorReporter() = default;

    static PlotErrorReporter m_GlobalReporter;

    std::map<std::string, std::vector<ErrorString>> m_Errors;
};
