#pragma once

#include <QHeaderView>

namespace kurbo {

class GridModel;

// The headings of a grid: all of its fixed rows, where equal neighbours may be one cell.
class GridHeader final : public QHeaderView {
    Q_OBJECT

  public:
    explicit GridHeader(QWidget* parent);

    void setGrid(const GridModel* grid) { grid_ = grid; }
    void setRowHeight(int pixels) { rowHeight_ = pixels; }
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

  private:
    [[nodiscard]] bool areOne(int row, int column, int otherRow, int otherColumn) const;
    [[nodiscard]] QRect cell(int row, int column) const;
    [[nodiscard]] QRect merged(int row, int column) const;

    const GridModel* grid_ = nullptr;
    int rowHeight_ = 21;
};

} // namespace kurbo
