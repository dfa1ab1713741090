// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/window_types.h>

#include <QIcon>
#include <QTreeWidget>
#include <vector>

namespace PLATFORM {

/// A report list. What the user does in it is told to the dialog, what the program does is not.
class ListWidget final : public QTreeWidget {
public:
    /// While one lives, the program acts.
    class Act {
    public:
        explicit Act(ListWidget& list) noexcept : m_List(list) { ++list.m_Acts; }
        Act(const Act&) = delete;
        Act& operator=(const Act&) = delete;
        ~Act() { --m_List.m_Acts; }

    private:
        ListWidget& m_List;
    };

    explicit ListWidget(HWND handle);

    void AddColumn(int column, const QString& heading, int width);
    [[nodiscard]] QString Heading(int column) const;
    /// As it was given; 0 for none.
    [[nodiscard]] int WidthOf(int column) const noexcept;

    /// Makes columns at least as wide as they were asked to be, their headings and the rows in
    /// view, and the list wide enough for all of them.
    void FitColumns();

    void SetImages(const CImageList& images);
    void AddRow(int row, const QString& text, int image);
    /// -1 for none.
    [[nodiscard]] int ImageOf(int row) const;
    [[nodiscard]] bool HasRow(int row) const { return row >= 0 && row < topLevelItemCount(); }
    [[nodiscard]] int Mark() const noexcept { return m_Mark; }
    void SetMark(int row) { m_Mark = HasRow(row) ? row : -1; }
    void RemoveRow(int row);
    void RemoveAll();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    struct Column {
        QString Heading;
        int Width;
    };

    HWND m_Handle;
    std::vector<Column> m_Columns;
    std::vector<QIcon> m_Icons;
    int m_Acts = 0;
    int m_Mark = -1;
    bool m_IsSecondClick = false;
};

}  // namespace PLATFORM
