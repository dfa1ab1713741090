// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/text/c_string.h>

#include <QColor>
#include <QString>
#include <string_view>

namespace PLATFORM::detail {

/// Texts in Windows-1252 and back. Characters that it does not have become "?".
[[nodiscard]] QString QtText(std::string_view text);
[[nodiscard]] CString TextOf(const QString& text);

/// Paths and back, with the same bytes.
[[nodiscard]] QString QtPath(const CString& path);
[[nodiscard]] CString PathOf(const QString& path);

[[nodiscard]] QColor QtColor(COLORREF color);
[[nodiscard]] COLORREF ColorOf(const QColor& color);

}  // namespace PLATFORM::detail
