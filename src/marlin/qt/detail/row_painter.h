// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/messages.h>

#include <QStyledItemDelegate>

namespace PLATFORM::detail {

/// Paints the cells of a report list: colors stay as they are in a selected row, swatches have an
/// edge that is seen on every background, and the dialog may draw on a cell.
class RowPainter final : public QStyledItemDelegate {
public:
    explicit RowPainter(HWND list) : m_List(list) {}

    /// With room for what the dialog draws beside the text.
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    [[nodiscard]] QRect DrawCell(QPainter& painter, const QStyleOptionViewItem& cell,
                                 const QModelIndex& index) const;

    HWND m_List;
};

}  // namespace PLATFORM::detail
