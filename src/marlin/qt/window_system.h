// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/core/export.h>
#include <marlin/platform/windowing/window_system.h>

#include <memory>

class QWidget;

namespace PLATFORM {

/// Shows dialogs as windows of Qt. It needs a `QApplication`, on whose thread it is made and used,
/// and outlives every dialog. The controls of a template keep its proportions and its tab order;
/// lists and edits grow with the window. Spoken names are those of the template, or else of the
/// label before a control.
class MARLIN_API QtWindowSystem : public WindowSystem {
public:
    /// What the user does, on its way to the dialogs.
    struct Events;

    QtWindowSystem();
    ~QtWindowSystem() override;

    /// The widget of a dialog or a control, or null. Owned by the window system.
    [[nodiscard]] QWidget* Widget(HWND window) const noexcept;

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
    struct State;

    template <typename Kind>
    [[nodiscard]] Kind* Find(HWND window) const noexcept;

    std::unique_ptr<State> m_State;
};

}  // namespace PLATFORM

namespace MARLINSUITE {

/// Shows all dialogs from now on in windows of Qt. A host without a `QApplication` gets one, which
/// lives until the process ends. False, and nothing changed, without a display to show windows on:
/// one that $QT_QPA_PLATFORM names, or else a Wayland or an X server that can be reached.
[[nodiscard]] MARLIN_API bool UseQtWindows();

}  // namespace MARLINSUITE
