// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>

#include <functional>

class CWnd;

/// Help for a dialog. There is none until a host installs a handler. One instance a process,
/// for one thread at a time.
class MARLIN_API HelpProvider {
public:
    /// Shows the help of a window; false when it has none.
    using Handler = std::function<bool(CWnd*)>;

    HelpProvider(const HelpProvider&) = delete;
    HelpProvider& operator=(const HelpProvider&) = delete;

    [[nodiscard]] static HelpProvider& GetInstance();

    /// Calls the handler. False without one, so that the framework's default runs.
    bool ShowHelpfile(CWnd* window) const;

    /// Installs the handler; an empty one removes it.
    void SetHandler(Handler handler) { m_Handler = std::move(handler); }

private:
    HelpProvider() = default;

    Handler m_Handler;
};
