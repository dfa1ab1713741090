// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/handles.h>
#include <marlin/platform/text/c_string.h>

#include <QColor>
#include <QString>
#include <string_view>

namespace PLATFORM::detail {

/// Texts, and back as they were: `before` are the bytes that were shown. An edited text takes their
/// encoding where it can, and UTF-8 otherwise.
[[nodiscard]] QString QtText(std::string_view text);
[[nodiscard]] CString TextOf(const QString& text, std::string_view before = {});

/// Paths and back, with the same bytes.
[[nodiscard]] QString QtPath(const CString& path);
[[nodiscard]] CString PathOf(const QString& path);

[[nodiscard]] QColor QtColor(COLORREF color);
[[nodiscard]] COLORREF ColorOf(const QColor& color);

}  // namespace PLATFORM::detail
