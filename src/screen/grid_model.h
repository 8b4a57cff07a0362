#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace kurbo {

struct GridColour {
    int red = 0;
    int green = 0;
    int blue = 0;
    friend bool operator==(const GridColour&, const GridColour&) = default;
};

// The cells of a screen's grid, without a window: texts, what is shown for them, fixed rows, hidden rows and columns,
// colours. Row 0 holds the headings. Cells outside of the grid have no text.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Role { ColourRole = Qt::UserRole + 1 };

    using QAbstractTableModel::QAbstractTableModel;

    // Empty cells; nothing hidden, coloured or listed. The first `fixedRows` stay in view.
    void reset(int rows, int columns, int fixedRows);
    [[nodiscard]] int fixedRows() const { return fixedRows_; }

    // TextMatrix: the text that a cell holds.
    [[nodiscard]] QString text(int row, int column) const;
    void setText(int row, int column, const QString& text);
    // What the cell shows: its text, or the entry of the column's list behind it. Fixed rows show their texts.
    [[nodiscard]] QString shownText(int row, int column) const;

    // Entries "#code;text" or "text", parted by "|"; an empty list takes the translation away.
    void setComboList(int column, const QString& list);
    void setColour(int row, int column, std::optional<GridColour> colour);
    [[nodiscard]] std::optional<GridColour> colour(int row, int column) const;
    void setRowHidden(int row, bool hidden);
    [[nodiscard]] bool isRowHidden(int row) const { return hiddenRows_.value(row, false); }
    void setColumnHidden(int column, bool hidden);
    [[nodiscard]] bool isColumnHidden(int column) const { return hiddenColumns_.value(column, false); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  Q_SIGNALS:
    void hiddenChanged();

  private:
    [[nodiscard]] bool holds(int row, int column) const;
    [[nodiscard]] qsizetype at(int row, int column) const { return qsizetype{row} * columns_ + column; }

    int rows_ = 0;
    int columns_ = 0;
    int fixedRows_ = 0;
    QList<QString> texts_;
    QHash<int, QHash<QString, QString>> lists_;
    QHash<qsizetype, GridColour> colours_;
    QHash<int, bool> hiddenRows_;
    QHash<int, bool> hiddenColumns_;
};

} // namespace kurbo

Q_DECLARE_METATYPE(kurbo::GridColour)
