// SPDX-License-Identifier: MIT
#include <marlin/platform/drawing/c_brush.h>
#include <marlin/platform/drawing/c_dc.h>
#include <marlin/platform/windowing/user_events.h>
#include <marlin/qt/detail/qt_text.h>
#include <marlin/qt/detail/row_painter.h>
#include <marlin/qt/detail/surface_image.h>

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace PLATFORM::detail {

// Lets the dialog draw on the cell, whose background is painted, and returns the text's place.
QRect RowPainter::DrawCell(QPainter& painter, const QStyleOptionViewItem& cell,
                           const QModelIndex& index) const {
    const qreal ratio = painter.device()->devicePixelRatioF();
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    const QSize pixels = cell.rect.size() * ratio;
    const RECT all = {0, 0, pixels.width(), pixels.height()};
    RECT text = all;
    const QImage image = DrawnImage(pixels, [&](CDC& dc) {
        CBrush brush(
            ColorOf(cell.palette.color(isSelected ? QPalette::Highlight : QPalette::Base)));
        dc.FillRect(&all, &brush);
        text = SendDrawCell(m_List, index.row(), index.column(), dc, all);
    });
    if (text.left > 0) {
        painter.drawImage(cell.rect, image);
    }
    return cell.rect.adjusted(qRound(text.left / ratio), 0, 0, 0);
}

QSize RowPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    // A row is as high as its image needs.
    const RECT cell = {0, 0, size.width(),
                       std::max(size.height(), option.decorationSize.height() + 4)};
    int drawn = 0;
    static_cast<void>(DrawnImage({1, 1}, [&](CDC& dc) {
        drawn = index.column() == 0
                    ? 0
                    : static_cast<int>(
                          SendDrawCell(m_List, index.row(), index.column(), dc, cell).left);
    }));
    return size + QSize(drawn, 0);
}

void RowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QIcon swatch = cell.icon;
    // The style would tint the icon of a selected row, so only its place is left to it.
    QStyle* const style = cell.widget ? cell.widget->style() : QApplication::style();
    const QRect place =
        style->subElementRect(QStyle::SE_ItemViewItemDecoration, &cell, cell.widget);
    cell.icon = QIcon();
    if (index.column() == 0) {
        QPixmap room(cell.decorationSize);
        room.fill(Qt::transparent);
        cell.icon = room;
    } else {
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
        cell.rect = DrawCell(*painter, cell, index);
    }
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    if (index.column() == 0) {
        const QRect square(place.center() - QPoint(7, 7), QSize(16, 16));
        painter->drawPixmap(square, swatch.pixmap(square.size()));
        const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
        painter->setPen(
            cell.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        painter->drawRect(square.adjusted(0, 0, -1, -1));
    }
}

}  // namespace PLATFORM::detail
