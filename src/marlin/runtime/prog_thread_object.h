// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/runtime/progress_text.h>
#include <marlin/runtime/progress_value.h>
#include <marlin/runtime/thread_object.h>

#include <string>

/// Work that shows its progress: a value, in whatever scale it and its owner agree on, and a text
/// about the current step. The work sets both on its worker, its owner reads them on one
/// other thread. At first 0 and empty.
/// @code
/// struct Work : ProgThreadObject {
///     int Execute(const bool&) override {
///         ProgText = "halfway";
///         Progress = 0.5F;
///         return 0;
///     }
/// } work;
/// const bool keepRunning = true;
/// work.Execute(keepRunning);
/// assert(work.GetProgress() == 0.5F && work.GetProgText() == "halfway");
/// @endcode
class MARLIN_API ProgThreadObject : public ThreadObject {
public:
    ProgThreadObject() = default;
    ProgThreadObject(const ProgThreadObject&) = default;
    ProgThreadObject& operator=(const ProgThreadObject&) = default;
    ~ProgThreadObject() override;

    [[nodiscard]] float GetProgress() const noexcept { return Progress; }
    /// The text as it is now. The reference shows later texts only after the next call.
    [[nodiscard]] const std::string& GetProgText() const { return ProgText.Refreshed(); }

protected:
    MARLINSUITE::ProgressValue Progress;
    MARLINSUITE::ProgressText ProgText;
};
