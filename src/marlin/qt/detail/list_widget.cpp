// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/user_events.h>
#include <marlin/platform/windowing/windowing_constants.h>
#include <marlin/qt/detail/list_widget.h>
#include <marlin/qt/detail/make.h>
#include <marlin/qt/detail/qt_text.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

namespace PLATFORM::detail {

namespace {

constexpr int imageRole = Qt::UserRole;
constexpr int bytesRole = Qt::UserRole + 1;

QIcon IconOf(const CImageList& images, int index) {
    QImage icon(images.Width(), images.Height(), QImage::Format_ARGB32);
    const auto pixels = images.Pixels(index);
    for (int y = 0; y < icon.height(); ++y) {
        for (int x = 0; x < icon.width(); ++x) {
            const auto pixel = pixels[static_cast<std::size_t>(y * icon.width() + x)];
            icon.setPixelColor(
                x, y, pixel == CImageList::Transparent ? QColor(0, 0, 0, 0) : QtColor(pixel));
        }
    }
    return QPixmap::fromImage(icon);
}

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

ListWidget::ListWidget(HWND handle) : m_Handle(handle) {
    setColumnCount(0);
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
    setColumnCount(static_cast<int>(m_Widths.size()));
    // Qt adds a column after the last one, so the headings from there on move to the right.
    for (int i = columnCount() - 1; i > column; --i) {
        headerItem()->setText(i, headerItem()->text(i - 1));
    }
    headerItem()->setText(column, QtText(heading.View()));
    for (int i = 0; i < columnCount(); ++i) {
        header()->resizeSection(i, ColumnWidth(i));
    }
}

CString ListWidget::Heading(int column) const {
    return TextOf(headerItem()->text(column));
}

int ListWidget::ColumnWidth(int column) const {
    return m_Widths[static_cast<std::size_t>(column)];
}

void ListWidget::FitColumns() {
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int i = 0; i < columnCount(); ++i) {
        const int wanted =
            std::max({ColumnWidth(i), header()->sectionSizeHint(i), sizeHintForColumn(i)});
        // A column that the user made wider stays so.
        header()->resizeSection(i, std::max(header()->sectionSize(i), wanted));
        total += wanted;
    }
    setMinimumWidth(total);
}

void ListWidget::ShowImage(QTreeWidgetItem& item) const {
    const auto image = static_cast<std::size_t>(item.data(0, imageRole).toInt());
    item.setIcon(0, image < m_Icons.size() ? m_Icons[image] : QIcon());
}

void ListWidget::SetImages(const CImageList* images) {
    m_Icons.clear();
    for (int i = 0; images && i < images->GetImageCount(); ++i) {
        m_Icons.push_back(IconOf(*images, i));
    }
    for (int row = 0; row < RowCount(); ++row) {
        ShowImage(*topLevelItem(row));
    }
}

void ListWidget::InsertRow(int row, const CString& text, int image) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    if (RowCount() == 0) {
        // The columns are fitted later, when the cells have their texts.
        QMetaObject::invokeMethod(
            this, [this] { FitColumns(); }, Qt::QueuedConnection);
    }
    auto* const item = Make<QTreeWidgetItem>();
    item->setData(0, imageRole, image);
    ShowImage(*item);
    insertTopLevelItem(row, item);
    SetCell(row, 0, text);
}

void ListWidget::DeleteRow(int row) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    // Qt would move the focus to another row.
    if (FocusedRow() == row) {
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
    const std::unique_ptr<QTreeWidgetItem> removed(takeTopLevelItem(row));
    m_Mark = m_Mark == row ? -1 : m_Mark > row ? m_Mark - 1 : m_Mark;
}

void ListWidget::DeleteRows() {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    clear();
    m_Mark = -1;
}

void ListWidget::SetCell(int row, int column, const CString& text) {
    QTreeWidgetItem& item = *topLevelItem(row);
    item.setText(column, QtText(text.View()));
    item.setData(column, bytesRole, QByteArray(text.GetString(), text.GetLength()));
}

CString ListWidget::Cell(int row, int column) const {
    return CString(topLevelItem(row)->data(column, bytesRole).toByteArray().toStdString());
}

void ListWidget::ScrollTo(int row) {
    scrollToItem(topLevelItem(row));
}

void ListWidget::SelectRow(int row, bool selected) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    topLevelItem(row)->setSelected(selected);
}

bool ListWidget::IsSelected(int row) const {
    return topLevelItem(row)->isSelected();
}

int ListWidget::SelectedCount() const {
    return static_cast<int>(selectionModel()->selectedRows().size());
}

void ListWidget::SetFocusedRow(int row) {
    const QScopedValueRollback change(m_IsChangedByProgram, true);
    setCurrentItem(topLevelItem(row), 0, QItemSelectionModel::NoUpdate);
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
    const int key = NumberOf(event->key());
    if (key != 0 && SendKey(m_Handle, key)) {
        return;
    }
    if (key == VK_RETURN) {
        event->ignore();  // so that the dialog presses its default button
        return;
    }
    QTreeWidget::keyPressEvent(event);
    m_Mark = currentIndex().row();
}

void ListWidget::mousePressEvent(QMouseEvent* event) {
    m_IsSecondClick = false;
    QTreeWidget::mousePressEvent(event);
    m_Mark = currentIndex().row();
}

void ListWidget::mouseReleaseEvent(QMouseEvent* event) {
    // The second release of a double click is not a click of its own.
    QTreeWidget::mouseReleaseEvent(event);
    if (!m_IsSecondClick) {
        SendNotice(m_Handle, NM_CLICK);
    }
}

void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    m_IsSecondClick = true;
    QTreeWidget::mouseDoubleClickEvent(event);
    SendNotice(m_Handle, NM_DBLCLK);
}

void ListWidget::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
    QTreeWidget::selectionChanged(selected, deselected);
    // A dialog knows of the changes that it makes itself.
    if (!m_IsChangedByProgram) {
        SendNotice(m_Handle, LVN_ITEMCHANGED);
    }
}

}  // namespace PLATFORM::detail
