// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/windowing/window_system.h>

#include <memory>
#include <string>

class QWidget;

namespace PLATFORM {

/// Shows dialogs as windows of Qt. It needs a `QApplication`, on whose thread it is made and used,
/// and has to outlive every dialog. Controls keep the proportions and the tab order of their
/// template; lists and edits grow with the window. A screen reader says a control's name in the
/// template, or else the label before it.
class MARLIN_API QtWindowSystem : public WindowSystem {
public:
    QtWindowSystem();
    ~QtWindowSystem() override;

    /// The widget of a dialog or a control, or null. Owned by the window system.
    [[nodiscard]] QWidget* Widget(HWND window) const noexcept;
    /// Lets a host's own widget stand for a window, which `CWnd::Create` has made: dialogs with
    /// that parent are shown above it. Null takes it back, before the widget goes.
    void SetWidget(HWND window, QWidget* widget);
    /// Keeps the sizes of dialogs in a settings file, so that each opens as the user left it.
    void KeepSizesIn(const std::string& path) { m_SizesPath = path; }

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

    [[nodiscard]] CString ClipboardText() const override;
    void SetClipboardText(const CString& text) override;

private:
    struct State;

    template <typename Kind>
    [[nodiscard]] Kind* Find(HWND window) const noexcept;

    std::unique_ptr<State> m_State;
    std::string m_SizesPath;
};

}  // namespace PLATFORM

namespace MARLINSUITE {

/// Shows all dialogs from now on in windows of Qt. A host without a `QApplication` gets one, which
/// lives until the process ends, keeps the process's locale as it was, and drops the toolkit's own
/// notes. False, and nothing changed, without a display to show windows on: the first of those that
/// $QT_QPA_PLATFORM names, or else a Wayland or an X server, that has its plug-in and can be
/// reached. `ErrorString::LastError()` then says why.
/// @code
/// // not run: takes over the dialogs of the whole process
/// if (MARLINSUITE::UseQtWindows()) {
///     DLG::EditContourList("harbour.cdf");
/// }
/// @endcode
[[nodiscard]] MARLIN_API bool UseQtWindows();

}  // namespace MARLINSUITE
