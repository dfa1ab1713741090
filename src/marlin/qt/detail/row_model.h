// SPDX-License-Identifier: MIT
#pragma once

#include <marlin/platform/windowing/c_image_list.h>
#include <marlin/platform/windowing/messages.h>

#include <QAbstractTableModel>
#include <QIcon>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace PLATFORM::detail {

/// The rows of a report list for a view of Qt. It counts them and asks the dialog for what they
/// show when they are painted. Icons are kept by their pixels, which images of one color share.
class RowModel final : public QAbstractTableModel {
public:
    explicit RowModel(HWND list) : m_List(list) {}

    void InsertColumn(int column, const QString& heading);
    void SetRowCount(int count);
    void DeleteRow(int row);
    void SetImages(const CImageList* images);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int column, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// Keeps what the user typed into column 0, for `TakeTyped`.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] std::optional<QString> TakeTyped() { return std::exchange(m_Typed, {}); }

private:
    [[nodiscard]] QIcon IconOf(int image) const;

    HWND m_List;
    int m_RowCount = 0;
    std::vector<QString> m_Headings;
    CImageList m_Images;
    std::optional<QString> m_Typed;
    mutable std::unordered_map<const std::uint32_t*, QIcon> m_Icons;
};

}  // namespace PLATFORM::detail
