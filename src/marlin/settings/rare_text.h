// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <memory>
#include <string>
#include <string_view>

/// A text that is nearly always empty, such as the comment of a settings key, and then takes no
/// more room than a pointer. A value.
class MARLIN_API RareText {
public:
    RareText() noexcept = default;
    explicit RareText(std::string_view text) { Set(text); }
    RareText(const RareText& other) { Set(other.Get()); }
    RareText(RareText&&) noexcept = default;
    RareText& operator=(const RareText& other) {
        Set(other.Get());
        return *this;
    }
    RareText& operator=(RareText&&) noexcept = default;
    ~RareText() = default;

    [[nodiscard]] const std::string& Get() const noexcept { return m_Text ? *m_Text : emptyText; }
    void Set(std::string_view text) {
        m_Text = text.empty() ? nullptr : std::make_unique<std::string>(text);
    }

private:
    static const std::string emptyText;

    std::unique_ptr<std::string> m_Text;
};
