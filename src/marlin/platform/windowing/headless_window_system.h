// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/drawing/size.h>
#include <marlin/platform/windowing/user_script.h>
#include <marlin/platform/windowing/window_system.h>

#include <memory>

namespace PLATFORM {

namespace detail {
struct HeadlessControl;
struct HeadlessDialog;
class HeadlessUser;
}  // namespace detail

/// Dialogs without a display, for tests and for hosts without windows: it keeps the state of every
/// control in memory, and a script acts as the user. Without a script, a dialog ends with Cancel
/// as soon as it is shown. Owner-drawn buttons draw on a surface of their own, at 96 dots an inch.
/// @code
/// PLATFORM::HeadlessWindowSystem windows;
/// PLATFORM::WindowSystem::SetCurrent(&windows);
/// windows.Script().InDialog([](PLATFORM::DialogUser& user) { user.Click(IDOK); });
/// const bool isChanged = DLG::EditContourList("sheet.cdf");
/// assert(isChanged);
/// PLATFORM::WindowSystem::SetCurrent(nullptr);
/// @endcode
class MARLIN_API HeadlessWindowSystem final : public WindowSystem {
public:
    HeadlessWindowSystem();
    ~HeadlessWindowSystem() override;

    [[nodiscard]] UserScript& Script() noexcept { return m_Script; }

    /// A pixel of an owner-drawn button as it was last drawn, or of the image in a list's row;
    /// CLR_INVALID where there is none, or a transparent one.
    [[nodiscard]] COLORREF FacePixel(HWND button, int x, int y) const noexcept;
    [[nodiscard]] SIZE FaceSize(HWND button) const noexcept;
    [[nodiscard]] COLORREF SwatchPixel(HWND list, int row, int x, int y) const noexcept;
    /// The row that was last scrolled into view, -1 for none.
    [[nodiscard]] int RowInView(HWND list) const noexcept;

    bool CreateDialog(HWND dialog, const DialogTemplate& form, std::span<const HWND> controls,
                      HWND parent) override;
    int RunDialog(HWND dialog) override;
    void EndDialog(HWND dialog, int result) override;
    void DestroyDialog(HWND dialog) override;

    [[nodiscard]] CString Text(HWND window) const override;
    void SetText(HWND window, const CString& text) override;
    [[nodiscard]] bool IsEnabled(HWND window) const override;
    void Enable(HWND control, bool enable) override;
    void SetFocus(HWND control) override;
    [[nodiscard]] HWND Focus(HWND dialog) const override;
    void Invalidate(HWND control) override;

    void Describe(HWND control, const CString& text) override;
    [[nodiscard]] CString Description(HWND control) const override;

    [[nodiscard]] bool IsChecked(HWND box) const override;
    void SetChecked(HWND box, bool checked) override;
    void SetRange(HWND spin, const SpinRange& range) override;
    [[nodiscard]] DropDownList* FindDropDown(HWND window) const override;
    [[nodiscard]] ReportList* FindList(HWND window) const override;

    int ShowMessage(HWND parent, const MessageRequest& request) override;
    int ShowMenu(HWND parent, const MenuRequest& request) override;
    bool ChooseFile(HWND parent, const FileRequest& request, CString& path) override;
    bool ChooseColor(HWND parent, const ColorRequest& request, COLORREF& color) override;

    [[nodiscard]] CString ClipboardText() const override { return m_Clipboard; }
    void SetClipboardText(const CString& text) override { m_Clipboard = text; }

private:
    friend class detail::HeadlessUser;
    struct State;

    [[nodiscard]] detail::HeadlessDialog* FindDialog(HWND dialog) const noexcept;
    [[nodiscard]] detail::HeadlessControl* FindControl(HWND control) const noexcept;
    [[nodiscard]] detail::HeadlessControl* FindControl(HWND control, CONTROL kind) const noexcept;
    [[nodiscard]] bool IsOnTop(HWND dialog) const noexcept;

    UserScript m_Script;
    CString m_Clipboard;
    std::unique_ptr<State> m_State;
};

}  // namespace PLATFORM
