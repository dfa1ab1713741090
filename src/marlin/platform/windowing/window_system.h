// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/dialog_template.h>
#include <marlin/platform/windowing/window_requests.h>

#include <span>

class CImageList;

namespace PLATFORM {

/// What presents dialogs: a headless one at first, or one of a host's choice. Everything runs on
/// the thread that shows the dialogs. Handles are made by the caller, and those of controls fit
/// the operations they are given to; a system ignores others, with empty results. What the user
/// does comes back through `Deliver`; what the program does through these operations does not.
class MARLIN_API WindowSystem {
public:
    /// The answer of an operation that cannot show anything, for want of a display.
    static constexpr int Failed = -1;

    WindowSystem() = default;
    WindowSystem(const WindowSystem&) = delete;
    WindowSystem& operator=(const WindowSystem&) = delete;
    virtual ~WindowSystem();

    [[nodiscard]] static WindowSystem& Current();
    /// Makes a system the current one, between dialogs; it must outlive all windows made from
    /// then on. Null brings the headless one back. Returns the one before.
    static WindowSystem* SetCurrent(WindowSystem* system);

    /// Makes a dialog, unseen, with a control for each of its template's, in that order; both
    /// are kept until `DestroyDialog`. `parent` may be null.
    virtual bool CreateDialog(HWND dialog, const DialogTemplate& form,
                              std::span<const HWND> controls, HWND parent) = 0;
    /// Shows the dialog and serves the user until `EndDialog`; returns what that was given.
    virtual int RunDialog(HWND dialog) = 0;
    virtual void EndDialog(HWND dialog, int result) = 0;
    virtual void DestroyDialog(HWND dialog) = 0;

    /// Of any window: a dialog's title, an edit's or a button's text ("&" before a mnemonic).
    [[nodiscard]] virtual CString Text(HWND window) const = 0;
    virtual void SetText(HWND window, const CString& text) = 0;
    [[nodiscard]] virtual bool IsEnabled(HWND control) const = 0;
    virtual void Enable(HWND control, bool enable) = 0;
    virtual void SetFocus(HWND control) = 0;
    [[nodiscard]] virtual HWND Focus(HWND dialog) const = 0;
    /// Has an owner-drawn button drawn again.
    virtual void Invalidate(HWND control) = 0;

    [[nodiscard]] virtual bool IsChecked(HWND box) const = 0;
    virtual void SetChecked(HWND box, bool checked) = 0;
    /// The index of a drop-down list's item, -1 for none.
    [[nodiscard]] virtual int CurrentItem(HWND combo) const = 0;
    virtual void SetCurrentItem(HWND combo, int item) = 0;
    [[nodiscard]] virtual int ItemCount(HWND combo) const = 0;
    [[nodiscard]] virtual CString ItemText(HWND combo, int item) const = 0;
    /// Returns where the item stands.
    virtual int AddItem(HWND combo, const CString& text) = 0;
    /// The lowest and highest number a spin sets.
    virtual void SetRange(HWND spin, int lower, int upper) = 0;

    virtual void InsertColumn(HWND list, int column, const CString& heading, int width) = 0;
    [[nodiscard]] virtual CString Heading(HWND list, int column) const = 0;
    [[nodiscard]] virtual int ColumnWidth(HWND list, int column) const = 0;
    /// Rows are given with the text of their column 0 and their image's index. The image list
    /// is read when it is set; null takes it away.
    virtual void SetImages(HWND list, const CImageList* images) = 0;
    virtual void InsertRow(HWND list, int row, const CString& text, int image) = 0;
    virtual void SetCell(HWND list, int row, int column, const CString& text) = 0;
    [[nodiscard]] virtual CString Cell(HWND list, int row, int column) const = 0;
    [[nodiscard]] virtual int RowImage(HWND list, int row) const = 0;
    [[nodiscard]] virtual int RowCount(HWND list) const = 0;
    virtual void DeleteRow(HWND list, int row) = 0;
    virtual void DeleteRows(HWND list) = 0;
    virtual void ScrollTo(HWND list, int row) = 0;
    [[nodiscard]] virtual bool IsSelected(HWND list, int row) const = 0;
    [[nodiscard]] virtual int SelectedCount(HWND list) const = 0;
    /// The first selected row below `after`, which -1 puts before the first; -1 for none.
    [[nodiscard]] virtual int NextSelected(HWND list, int after) const = 0;
    virtual void SelectRow(HWND list, int row, bool selected) = 0;
    /// The row that the keyboard moves from, and that a range of rows is selected from.
    virtual void SetFocusedRow(HWND list, int row) = 0;
    [[nodiscard]] virtual int FocusedRow(HWND list) const = 0;
    virtual void SetSelectionMark(HWND list, int row) = 0;
    [[nodiscard]] virtual int SelectionMark(HWND list) const = 0;

    /// Boxes on top of a window or, with null, of none. A message box returns the number of the
    /// button that closed it, the others whether one was chosen, which is then set.
    virtual int ShowMessage(HWND parent, const MessageRequest& request) = 0;
    virtual bool ChooseFile(HWND parent, const FileRequest& request, CString& path) = 0;
    virtual bool ChooseColor(HWND parent, const ColorRequest& request, COLORREF& color) = 0;

protected:
    /// Gives a message to a window's class.
    static LRESULT Deliver(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// The messages of a control to its dialog.
    static void DeliverCommand(HWND control, UINT code);
    static void DeliverNotice(HWND control, UINT code);
    /// A key in a list; whether the dialog has made something of it.
    static bool DeliverKey(HWND list, int key);
    /// A request for help in a dialog.
    static void DeliverHelp(HWND dialog);
    /// Has an owner-drawn button draw itself onto a context.
    static void DeliverDraw(HWND button, UINT action, HDC dc, const RECT& face);

    /// What a spin of so many steps makes of its edit's text: the whole part of the number
    /// moved, within the range. A text that is no number counts as the lowest.
    [[nodiscard]] static CString Spun(const CString& text, int steps, int lower, int upper);
    /// A path with the extension added, where its name has none.
    [[nodiscard]] static CString WithExtension(const CString& path, const CString& extension);
};

}  // namespace PLATFORM
