// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/user_script.h>
#include <marlin/platform/windowing/window_system.h>

#include <memory>

namespace PLATFORM {

struct HeadlessControl;
struct HeadlessDialog;

/// Dialogs without a display: the state of every control is kept, and a script acts as the user.
/// Without one, a dialog ends with Cancel as soon as it is shown. Owner-drawn buttons draw on a
/// surface of their own, at 96 dots an inch.
class MARLIN_API HeadlessWindowSystem final : public WindowSystem {
public:
    HeadlessWindowSystem();
    ~HeadlessWindowSystem() override;

    [[nodiscard]] UserScript& Script() noexcept { return m_Script; }

    /// What stands on the screen: a pixel of an owner-drawn button as it was last drawn, and of
    /// the image beside a row; CLR_INVALID where there is none, or where it is transparent.
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
    [[nodiscard]] bool IsEnabled(HWND control) const override;
    void Enable(HWND control, bool enable) override;
    void SetFocus(HWND control) override;
    [[nodiscard]] HWND Focus(HWND dialog) const override;
    void Invalidate(HWND control) override;

    [[nodiscard]] bool IsChecked(HWND box) const override;
    void SetChecked(HWND box, bool checked) override;
    [[nodiscard]] int CurrentItem(HWND combo) const override;
    void SetCurrentItem(HWND combo, int item) override;
    [[nodiscard]] int ItemCount(HWND combo) const override;
    [[nodiscard]] CString ItemText(HWND combo, int item) const override;
    int AddItem(HWND combo, const CString& text) override;
    void SetRange(HWND spin, int lower, int upper) override;

    void InsertColumn(HWND list, int column, const CString& heading, int width) override;
    [[nodiscard]] CString Heading(HWND list, int column) const override;
    [[nodiscard]] int ColumnWidth(HWND list, int column) const override;
    void SetImages(HWND list, const CImageList* images) override;
    void InsertRow(HWND list, int row, const CString& text, int image) override;
    void SetCell(HWND list, int row, int column, const CString& text) override;
    [[nodiscard]] CString Cell(HWND list, int row, int column) const override;
    [[nodiscard]] int RowImage(HWND list, int row) const override;
    [[nodiscard]] int RowCount(HWND list) const override;
    void DeleteRow(HWND list, int row) override;
    void DeleteRows(HWND list) override;
    void ScrollTo(HWND list, int row) override;
    [[nodiscard]] bool IsSelected(HWND list, int row) const override;
    [[nodiscard]] int SelectedCount(HWND list) const override;
    [[nodiscard]] int NextSelected(HWND list, int after) const override;
    void SelectRow(HWND list, int row, bool selected) override;
    void SetFocusedRow(HWND list, int row) override;
    [[nodiscard]] int FocusedRow(HWND list) const override;
    void SetSelectionMark(HWND list, int row) override;
    [[nodiscard]] int SelectionMark(HWND list) const override;

    int ShowMessage(HWND parent, const MessageRequest& request) override;
    bool ChooseFile(HWND parent, const FileRequest& request, CString& path) override;
    bool ChooseColor(HWND parent, const ColorRequest& request, COLORREF& color) override;

private:
    class User;
    struct State;

    [[nodiscard]] HeadlessDialog* FindDialog(HWND dialog) const noexcept;
    [[nodiscard]] HeadlessControl* FindControl(HWND control) const noexcept;
    [[nodiscard]] HeadlessControl* FindList(HWND list) const noexcept;
    void Draw(HeadlessControl& button, UINT action);

    UserScript m_Script;
    std::unique_ptr<State> m_State;
};

}  // namespace PLATFORM
