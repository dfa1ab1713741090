// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/list_widget.h>
#include <marlin/qt/detail/qt_text.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

namespace PLATFORM::detail {

namespace {

// The framework's number of a key that dialogs handle; 0 for all others.
int NumberOf(int key) noexcept {
    switch (key) {
        case Qt::Key_Insert:
            return VK_INSERT;
        case Qt::Key_Delete:
            return VK_DELETE;
        case Qt::Key_F2:
            return VK_F2;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return VK_RETURN;
        default:
            return 0;
    }
}

}  // namespace

ListWidget::ListWidget(HWND handle) : m_Handle(handle), m_Rows(handle), m_Painter(handle) {
    setModel(&m_Rows);
    setItemDelegate(&m_Painter);
    setSelectionMode(ExtendedSelection);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);  // Tab leaves the list
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
}

void ListWidget::InsertColumn(int column, const CString& heading, int width) {
    m_Widths.insert(m_Widths.begin() + column, width);
    m_Rows.InsertColumn(column, QtText(heading.View()));
    for (int i = 0; i < ColumnCount(); ++i) {
        header()->resizeSection(i, ColumnWidth(i));
    }
}

CString ListWidget::Heading(int column) const {
    return TextOf(m_Rows.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
}

int ListWidget::ColumnWidth(int column) const {
    return m_Widths[static_cast<std::size_t>(column)];
}

void ListWidget::FitColumns() {
    // A level of 1e200 has over 200 digits.
    const int widest = 24 * fontMetrics().averageCharWidth();
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int i = 0; i < ColumnCount(); ++i) {
        const int content = std::min(sizeHintForColumn(i), widest);
        const int wanted = std::max({ColumnWidth(i), header()->sectionSizeHint(i), content});
        // A column that the user made wider stays so.
        header()->resizeSection(i, std::max(header()->sectionSize(i), wanted));
        total += wanted;
    }
    setMinimumWidth(total);
}

void ListWidget::SetImages(const CImageList* images) {
    m_Rows.SetImages(images);
    viewport()->update();
}

void ListWidget::SetRowCount(int count) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    const bool isFirst = RowCount() == 0;
    m_Rows.SetRowCount(count);
    m_Mark = -1;
    if (isFirst && count > 0) {
        FitColumns();
    }
}

void ListWidget::DeleteRow(int row) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    // Qt would move the focus to another row.
    if (FocusedRow() == row) {
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
    m_Rows.DeleteRow(row);
    m_Mark = m_Mark == row ? -1 : m_Mark > row ? m_Mark - 1 : m_Mark;
}

void ListWidget::ScrollTo(int row) {
    scrollTo(m_Rows.index(row, 0));
}

void ListWidget::EditLabel(int row) {
    edit(m_Rows.index(row, 0));
}

void ListWidget::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    const int row = FocusedRow();
    const std::optional<QString> typed = m_Rows.TakeTyped();
    QTreeView::closeEditor(editor, hint);
    // Only now may the dialog show its rows anew.
    if (typed) {
        SendLabel(m_Handle, row, TextOf(*typed));
    }
}

void ListWidget::SelectRows(int first, int last, bool selected) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    const QItemSelection rows(m_Rows.index(first, 0), m_Rows.index(last, ColumnCount() - 1));
    selectionModel()->select(
        rows, selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect);
}

bool ListWidget::IsSelected(int row) const {
    return selectionModel()->isSelected(m_Rows.index(row, 0));
}

int ListWidget::SelectedCount() const {
    // Rows are selected whole, in ranges that do not overlap: far fewer than rows.
    int count = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        count += range.left() == 0 ? range.height() : 0;
    }
    return count;
}

void ListWidget::SetFocusedRow(int row) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    selectionModel()->setCurrentIndex(m_Rows.index(row, 0), QItemSelectionModel::NoUpdate);
}

void ListWidget::SetSelectionMark(int row) {
    m_Mark = row;
}

// Shift with an arrow selects from the mark, which a program may have set; Qt would start from
// where its own last click was.
bool ListWidget::MovesBy(const QKeyEvent& event) {
    const int step = event.key() == Qt::Key_Down ? 1 : event.key() == Qt::Key_Up ? -1 : 0;
    if (step == 0 || event.modifiers() != Qt::ShiftModifier || RowCount() == 0) {
        return false;
    }
    const int focused = FocusedRow();
    const int row = focused < 0 ? 0 : std::clamp(focused + step, 0, RowCount() - 1);
    m_Mark = std::max(m_Mark, 0);
    const QItemSelection rows(m_Rows.index(std::min(m_Mark, row), 0),
                              m_Rows.index(std::max(m_Mark, row), ColumnCount() - 1));
    selectionModel()->setCurrentIndex(m_Rows.index(row, 0), QItemSelectionModel::NoUpdate);
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    scrollTo(m_Rows.index(row, 0));
    return true;
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
    if (state() == EditingState) {
        return;  // what a field in the list has no use for is nobody's
    }
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    const int key = held == Qt::NoModifier ? NumberOf(event->key()) : 0;
    if (key != 0 && SendKey(m_Handle, key)) {
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();  // so that the dialog presses its default button
        return;
    }
    const int before = FocusedRow();
    if (!MovesBy(*event)) {
        QTreeView::keyPressEvent(event);
        // Shift alone, for one, moves nothing.
        m_Mark = FocusedRow() == before ? m_Mark : FocusedRow();
    }
}

void ListWidget::mousePressEvent(QMouseEvent* event) {
    m_IsSecondClick = false;
    QTreeView::mousePressEvent(event);
    if (event->modifiers() != Qt::ShiftModifier) {
        m_Mark = currentIndex().row();
    }
}

void ListWidget::mouseReleaseEvent(QMouseEvent* event) {
    // The second release of a double click is not a click of its own.
    QTreeView::mouseReleaseEvent(event);
    if (!m_IsSecondClick && event->button() == Qt::LeftButton) {
        SendNotice(m_Handle, NM_CLICK);
    }
}

void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    m_IsSecondClick = true;
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) {
        SendNotice(m_Handle, NM_DBLCLK);
    }
}

void ListWidget::contextMenuEvent(QContextMenuEvent* event) {
    const QPoint place = event->reason() == QContextMenuEvent::Keyboard
                             ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                             : event->globalPos();
    SendContextMenu(m_Handle, {place.x(), place.y()});
}

void ListWidget::focusInEvent(QFocusEvent* event) {
    // Qt gives the first row the focus, so that the first arrow key would pass it by.
    const bool isNowhere = !currentIndex().isValid();
    QTreeView::focusInEvent(event);
    if (isNowhere) {
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
}

void ListWidget::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    // A dialog knows of the changes that it makes itself.
    if (!m_IsChangedByProgram) {
        SendNotice(m_Handle, LVN_ITEMCHANGED);
    }
}

}  // namespace PLATFORM::detail
