// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_wnd.h>

#include <memory>
#include <mutex>
#include <unordered_map>

namespace PLATFORM {

/// The windows of the process and their wrappers.
class WindowTable {
public:
    [[nodiscard]] static WindowTable& Get();

    /// A new window; a control has a parent and its number.
    [[nodiscard]] HWND Add(HWND parent, int id);
    /// Ends a window and its controls; their wrappers have none afterwards.
    void Remove(HWND window);

    [[nodiscard]] bool Has(HWND window);
    [[nodiscard]] HWND Parent(HWND window);
    [[nodiscard]] int Id(HWND window);
    [[nodiscard]] HWND Child(HWND parent, int id);

    [[nodiscard]] CWnd* Wrapper(HWND window);
    bool Attach(HWND window, CWnd* wrapper);
    void Detach(HWND window);

private:
    struct Record {
        HWND Parent = nullptr;
        int Id = 0;
        CWnd* Attached = nullptr;
        std::unique_ptr<CWnd> MadeUp;
    };

    [[nodiscard]] Record* Find(HWND window);
    void Erase(HWND window);

    // Recursive: ending a made-up wrapper comes back here.
    std::recursive_mutex m_Lock;
    std::unordered_map<HWND, Record> m_Records;
    std::uintptr_t m_Last = 0;
};

}  // namespace PLATFORM
