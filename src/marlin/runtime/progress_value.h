// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

namespace MARLINSUITE {

/// A `float` that one thread sets while others read it; 0 at first. It takes part in arithmetic
/// and comparisons as the number that it converts to.
class ProgressValue {
public:
    constexpr ProgressValue() noexcept = default;
    constexpr ProgressValue(float value) noexcept : m_Value(value) {}
    ProgressValue(const ProgressValue& other) noexcept : m_Value(static_cast<float>(other)) {}
    ProgressValue& operator=(const ProgressValue& other) noexcept {
        return *this = static_cast<float>(other);
    }
    ~ProgressValue() = default;

    [[nodiscard]] operator float() const noexcept { return m_Value.load(); }

    ProgressValue& operator=(float value) noexcept {
        m_Value.store(value);
        return *this;
    }
    ProgressValue& operator+=(float step) noexcept { return *this = *this + step; }
    ProgressValue& operator-=(float step) noexcept { return *this = *this - step; }
    ProgressValue& operator*=(float factor) noexcept { return *this = *this * factor; }
    ProgressValue& operator/=(float divisor) noexcept { return *this = *this / divisor; }
    ProgressValue& operator++() noexcept { return *this += 1; }
    ProgressValue& operator--() noexcept { return *this -= 1; }
    float operator++(int) noexcept { return ++*this - 1; }
    float operator--(int) noexcept { return --*this + 1; }

private:
    std::atomic<float> m_Value{0.0F};
};

}  // namespace MARLINSUITE
