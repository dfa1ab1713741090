// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/window_messages.h>
#include <marlin/qt/detail/events.h>
#include <marlin/qt/detail/list_widget.h>
#include <marlin/qt/detail/make.h>
#include <marlin/qt/detail/qt_text.h>

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

namespace PLATFORM {

namespace {

using Events = QtWindowSystem::Events;

constexpr int imageRole = Qt::UserRole;

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

// The number of a key that dialogs know; 0 for all others.
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
    setTabKeyNavigation(false);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(true);
}

void ListWidget::AddColumn(int column, const QString& heading, int width) {
    const auto size = static_cast<std::ptrdiff_t>(m_Columns.size());
    m_Columns.insert(m_Columns.begin() + std::clamp<std::ptrdiff_t>(column, 0, size),
                     {heading, width});
    setColumnCount(static_cast<int>(m_Columns.size()));
    for (int i = 0; i < columnCount(); ++i) {
        const Column& shown = m_Columns[static_cast<std::size_t>(i)];
        headerItem()->setText(i, shown.Heading);
        header()->resizeSection(i, shown.Width);
    }
}

void ListWidget::FitColumns() {
    int total = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int i = 0; i < columnCount(); ++i) {
        const int wanted =
            std::max({WidthOf(i), header()->sectionSizeHint(i), sizeHintForColumn(i)});
        header()->resizeSection(i, std::max(header()->sectionSize(i), wanted));
        total += wanted;
    }
    setMinimumWidth(total);
}

QString ListWidget::Heading(int column) const {
    const bool isThere = column >= 0 && static_cast<std::size_t>(column) < m_Columns.size();
    return isThere ? m_Columns[static_cast<std::size_t>(column)].Heading : QString();
}

int ListWidget::WidthOf(int column) const noexcept {
    const bool isThere = column >= 0 && static_cast<std::size_t>(column) < m_Columns.size();
    return isThere ? m_Columns[static_cast<std::size_t>(column)].Width : 0;
}

void ListWidget::SetImages(const CImageList& images) {
    m_Icons.clear();
    for (int i = 0; i < images.GetImageCount(); ++i) {
        m_Icons.push_back(IconOf(images, i));
    }
    for (int row = 0; row < topLevelItemCount(); ++row) {
        const auto image = static_cast<std::size_t>(ImageOf(row));
        topLevelItem(row)->setIcon(0, image < m_Icons.size() ? m_Icons[image] : QIcon());
    }
}

void ListWidget::AddRow(int row, const QString& text, int image) {
    const Act act(*this);
    if (topLevelItemCount() == 0) {
        // Once the cells have their texts.
        QMetaObject::invokeMethod(
            this, [this] { FitColumns(); }, Qt::QueuedConnection);
    }
    auto* const item = Make<QTreeWidgetItem>();
    item->setText(0, text);
    item->setData(0, imageRole, image);
    if (const auto index = static_cast<std::size_t>(image); index < m_Icons.size()) {
        item->setIcon(0, m_Icons[index]);
    }
    insertTopLevelItem(std::clamp(row, 0, topLevelItemCount()), item);
}

int ListWidget::ImageOf(int row) const {
    return HasRow(row) ? topLevelItem(row)->data(0, imageRole).toInt() : -1;
}

void ListWidget::RemoveRow(int row) {
    if (!HasRow(row)) {
        return;
    }
    const Act act(*this);
    if (currentIndex().row() == row) {
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
    }
    const std::unique_ptr<QTreeWidgetItem> removed(takeTopLevelItem(row));
    m_Mark = m_Mark == row ? -1 : m_Mark > row ? m_Mark - 1 : m_Mark;
}

void ListWidget::RemoveAll() {
    const Act act(*this);
    clear();
    m_Mark = -1;
}

void ListWidget::keyPressEvent(QKeyEvent* event) {
    const int key = NumberOf(event->key());
    if (key != 0 && Events::Key(m_Handle, key)) {
        return;
    }
    if (key == VK_RETURN) {
        event->ignore();  // and the dialog presses its default button
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
    QTreeWidget::mouseReleaseEvent(event);
    if (!m_IsSecondClick) {
        Events::Notice(m_Handle, NM_CLICK);
    }
}

void ListWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    m_IsSecondClick = true;
    QTreeWidget::mouseDoubleClickEvent(event);
    Events::Notice(m_Handle, NM_DBLCLK);
}

void ListWidget::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
    QTreeWidget::selectionChanged(selected, deselected);
    if (m_Acts == 0) {
        Events::Notice(m_Handle, LVN_ITEMCHANGED);
    }
}

}  // namespace PLATFORM
