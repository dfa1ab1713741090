// SPDX-License-Identifier: MIT
#pragma once

#include "output.h"

#include <nlohmann/json.hpp>

namespace HOST {

/// A JSON value; the members of an object keep the order in which they are added. Its texts must
/// be UTF-8.
using Json = nlohmann::ordered_json;

/// A whole number without a fraction; null for a number that is not finite.
[[nodiscard]] Json JsonNumber(double value);
/// The number of the value's shortest text: 0.35, not 0.3499999940395355.
[[nodiscard]] Json JsonNumber(float value);

/// Appends the value, indented, and ends the line.
void AppendJson(const Json& json, Output& output);

}  // namespace HOST
