// SPDX-License-Identifier: MIT
#pragma once

/// The order in which the library's process-wide objects are made when it is loaded, and, in
/// reverse, destroyed when it is unloaded: the values of `[[gnu::init_priority(...)]]`, smaller
/// ones first.
///
/// Without them the order across source files would be that of the linker. A host's own static
/// objects need no place here: the system loads the library before the host's code runs. An
/// object that is constant-initialised, or made on first use in a function, needs none either.
/// The compiler reserves the values up to 100.
namespace MARLINSUITE::detail {

/// The start-up. It hands over the string table and the dialog templates, so that every later
/// constructor finds its messages.
inline constexpr int LoadStartUp = 101;

/// Objects made of the standard library alone: texts and empty tables.
inline constexpr int LoadValues = 102;

/// Objects made with the help of those: names, keys and sections.
inline constexpr int LoadComposites = 103;

}  // namespace MARLINSUITE::detail
