#pragma once

#include "base/units.h"
#include "screen/grid/grid_list.h"
#include "screen/grid/grid_rules.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QStringList>

#include <optional>
#include <vector>

namespace kurbo {

struct GridColour {
    int red = 0;
    int green = 0;
    int blue = 0;
    friend bool operator==(const GridColour&, const GridColour&) = default;
};

// What a column holds; decides which pasted texts it takes.
enum class GridType { Integer = 2, Long, Single, Double, Currency, Date, Text, YesNo = 11 };
enum class GridAlign { Left, Centre, Right };
// Whether a row has been changed since it was filled: by the program, or by the person.
enum class GridStatus { None = 0, Updated = 1, Modified = 2 };

// The cells of a screen's grid, without a window. The first FixedRows and FixedCols hold headings and are never edited;
// the FrozenRows and FrozenCols behind them stay in view as well. Cells outside of the grid have no text.
class GridModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Role { ForeColourRole = Qt::UserRole + 1, BackColourRole, AlignRole };

    using QAbstractTableModel::QAbstractTableModel;

    struct Shape {
        int rows = 0;
        int columns = 0;
        int fixedRows = 1;
        int fixedColumns = 1;
        int frozenRows = 0;
        int frozenColumns = 0;
        friend bool operator==(const Shape&, const Shape&) = default;
    };
    // Empty cells; nothing hidden, coloured, listed or formatted. The rules stay. A grid of the same shape keeps its
    // cursor and its selection.
    void reset(const Shape& shape);
    // The headings of row 0, parted by "|"; "^", "<" or ">" in front of one aligns its column.
    void FormatString(const QString& headings);
    // The screen's rules; they live longer than the grid. Without rules nothing can be edited.
    void setRules(GridRules* rules) { rules_ = rules; }
    [[nodiscard]] GridRules* rules() const { return rules_; }

    [[nodiscard]] int Rows() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] int Cols() const { return shape_.columns; }
    [[nodiscard]] int FixedRows() const { return shape_.fixedRows; }
    [[nodiscard]] int FixedCols() const { return shape_.fixedColumns; }
    [[nodiscard]] int FrozenRows() const { return shape_.frozenRows; }
    [[nodiscard]] int FrozenCols() const { return shape_.frozenColumns; }
    // Empty rows more, or the last rows less.
    void Rows(int rows);
    void AddItem(int row);
    void RemoveItem(int row);

    // The text that a cell holds. Writing a new text marks the row as updated.
    [[nodiscard]] QString TextMatrix(int row, int column) const;
    void TextMatrix(int row, int column, const QString& text);
    // A row's cells at once, without a mark.
    void fillRow(int row, const QStringList& cells);
    // What the cell shows: its text by the column's list and format. Fixed rows show their texts.
    [[nodiscard]] QString CellText(int row, int column) const;
    // The box of a yes/no column.
    [[nodiscard]] bool CellChecked(int row, int column) const;
    void CellChecked(int row, int column, bool checked);

    // Changes made by the person: a new text marks the row as modified and is told to the rules. A cell that may not be
    // edited is left alone. Texts are trimmed, and a shown text of the column's list is held as its code.
    void edit(int row, int column, const QString& text);
    void clear(int row, int column);
    [[nodiscard]] bool Editable(int row, int column) const;

    [[nodiscard]] GridStatus RowStatus(int row) const;
    void RowStatus(int row, GridStatus status);
    void clearRowStatus();

    // Between false and true the cells change without a picture of each.
    void Redraw(bool redraw);

    void ColComboList(int column, const QString& list);
    [[nodiscard]] const GridList& ColComboList(int column) const;
    void ColFormat(int column, const QString& format);
    [[nodiscard]] QString ColFormat(int column) const;
    // The signs of an edited text: "0" a digit that must be there, "#" one that may be there, other signs themselves.
    void ColEditMask(int column, const QString& mask);
    [[nodiscard]] QString ColEditMask(int column) const;
    void ColDataType(int column, GridType type);
    [[nodiscard]] GridType ColDataType(int column) const;
    void ColAlignment(int column, GridAlign align);
    [[nodiscard]] GridAlign ColAlignment(int column) const;
    void ColWidth(int column, Twips width);
    [[nodiscard]] Twips ColWidth(int column) const;
    void ColHidden(int column, bool hidden);
    [[nodiscard]] bool ColHidden(int column) const;
    void RowHidden(int row, bool hidden);
    [[nodiscard]] bool RowHidden(int row) const;
    // Neighbours of the same text in the fixed rows become one cell.
    void MergeHeadings(bool merge);
    [[nodiscard]] bool MergeHeadings() const { return mergeHeadings_; }

    // Rows that the person has changed show a sign before their heading.
    void MarkEdits(bool mark);

    // Nothing takes the colour away.
    void CellForeColor(int row, int column, std::optional<GridColour> colour);
    void CellBackColor(int row, int column, std::optional<GridColour> colour);
    void RowForeColor(int row, std::optional<GridColour> colour);
    void RowBackColor(int row, std::optional<GridColour> colour);
    // What the cell is drawn in: its own colour before its row's.
    [[nodiscard]] std::optional<GridColour> CellForeColor(int row, int column) const;
    [[nodiscard]] std::optional<GridColour> CellBackColor(int row, int column) const;
    [[nodiscard]] std::optional<GridColour> RowForeColor(int row) const;
    [[nodiscard]] std::optional<GridColour> RowBackColor(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  Q_SIGNALS:
    // All cells are about to be filled anew.
    void aboutToRefill();
    // Hidden rows or columns, widths or headings have changed.
    void looksChanged();

  private:
    struct Look {
        std::optional<GridColour> fore;
        std::optional<GridColour> back;
    };
    struct Row {
        QStringList cells;
        GridStatus status = GridStatus::None;
        bool hidden = false;
        Look look;
        QHash<int, Look> looks;
    };
    struct Column {
        Twips width{960};
        GridType type = GridType::Text;
        GridAlign align = GridAlign::Left;
        bool hidden = false;
        QString format;
        QString mask;
        GridList list;
    };

    [[nodiscard]] bool holds(int row, int column) const;
    [[nodiscard]] Row emptyRow() const;
    [[nodiscard]] Row& rowAt(int row) { return rows_[static_cast<std::size_t>(row)]; }
    [[nodiscard]] const Row& rowAt(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    [[nodiscard]] Column& columnAt(int column) { return columns_[static_cast<std::size_t>(column)]; }
    [[nodiscard]] const Column& columnAt(int column) const { return columns_[static_cast<std::size_t>(column)]; }
    void write(int row, int column, const QString& text, GridStatus status);
    void changed(int row, int column);
    void lookChanged();
    void statusChanged(int first, int last);
    [[nodiscard]] std::optional<GridColour> colourOf(int row, int column, std::optional<GridColour> Look::*part) const;

    Shape shape_;
    std::vector<Row> rows_;
    std::vector<Column> columns_;
    GridRules* rules_ = nullptr;
    bool mergeHeadings_ = false;
    bool markEdits_ = false;
    bool quiet_ = false;
};

// A grid that isn't redrawn for as long as it lives.
class Undrawn final {
  public:
    explicit Undrawn(GridModel& grid) : grid_(grid) { grid_.Redraw(false); }
    ~Undrawn() { grid_.Redraw(true); }
    Undrawn(const Undrawn&) = delete;
    Undrawn& operator=(const Undrawn&) = delete;

  private:
    GridModel& grid_;
};

} // namespace kurbo

Q_DECLARE_METATYPE(kurbo::GridColour)
