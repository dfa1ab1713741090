// SPDX-License-Identifier: MIT
#include <marlin/platform/windowing/user_events.h>
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/row_model.h>

#include <QPixmap>

namespace PLATFORM::detail {

void RowModel::InsertColumn(int column, const QString& heading) {
    beginInsertColumns({}, column, column);
    m_Headings.insert(m_Headings.begin() + column, heading);
    endInsertColumns();
}

void RowModel::SetRowCount(int count) {
    beginResetModel();
    m_RowCount = count;
    endResetModel();
}

void RowModel::DeleteRow(int row) {
    beginRemoveRows({}, row, row);
    --m_RowCount;
    endRemoveRows();
}

void RowModel::SetImages(const CImageList* images) {
    m_Images = images ? *images : CImageList();
    m_Icons.clear();
}

int RowModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_RowCount;
}

int RowModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_Headings.size());
}

QIcon RowModel::IconOf(int image) const {
    const auto pixels = m_Images.Pixels(image);
    if (pixels.empty()) {
        return {};
    }
    const auto [known, isNew] = m_Icons.try_emplace(pixels.data());
    if (isNew) {
        QImage icon(m_Images.Width(), m_Images.Height(), QImage::Format_ARGB32);
        std::size_t next = 0;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x) {
                const std::uint32_t pixel = pixels[next++];
                icon.setPixelColor(
                    x, y, pixel == CImageList::Transparent ? QColor(0, 0, 0, 0) : QtColor(pixel));
            }
        }
        known->second = QPixmap::fromImage(icon);
    }
    return known->second;
}

QVariant RowModel::data(const QModelIndex& index, int role) const {
    switch (role) {
        case Qt::DisplayRole:
        case Qt::EditRole:
            return QtText(AskCell(m_List, index.row(), index.column()).Text.View());
        case Qt::DecorationRole:
            return index.column() == 0 ? IconOf(AskCell(m_List, index.row(), 0).Image) : QIcon();
        case Qt::ToolTipRole:
        case Qt::AccessibleDescriptionRole:
            return QtText(AskTip(m_List, index.row()).View());
        default:
            return {};
    }
}

QVariant RowModel::headerData(int column, Qt::Orientation orientation, int role) const {
    const bool isHeading = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isHeading ? m_Headings[static_cast<std::size_t>(column)] : QVariant();
}

Qt::ItemFlags RowModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index) | Qt::ItemNeverHasChildren;
    return index.column() == 0 ? flags | Qt::ItemIsEditable : flags;
}

bool RowModel::setData(const QModelIndex&, const QVariant& value, int role) {
    if (role == Qt::EditRole) {
        m_Typed = value.toString();
    }
    return role == Qt::EditRole;
}

}  // namespace PLATFORM::detail
