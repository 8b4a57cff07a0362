#pragma once

#include "screen/grid/grid_model.h"

#include <QString>

#include <optional>
#include <vector>

namespace kurbo {

// Everything on paper is measured in twips, 1440 an inch, from the upper left corner of the sheet.

struct PaperSize {
    int width = 0;
    int height = 0;
};
inline constexpr PaperSize a4Portrait{11906, 16838};
inline constexpr PaperSize a4Landscape{16838, 11906};
// What is left free at each edge: most printers can't reach further.
inline constexpr int paperMargin = 567;

// Which edges of an item are drawn; they add up.
enum PaperEdge : unsigned { NoEdge = 0, LeftEdge = 1, TopEdge = 2, RightEdge = 4, BottomEdge = 8, AllEdges = 15 };

// A rectangle with a text in it. A text that is too long for its rectangle is condensed, never cut.
struct PaperItem {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    QString text{};
    GridAlign align = GridAlign::Left;
    int fontSize = 180;
    bool bold = false;
    GridColour fore{};
    std::optional<GridColour> fill{};
    unsigned edges = NoEdge;

    [[nodiscard]] int right() const { return left + width; }
    [[nodiscard]] int bottom() const { return top + height; }
};
using PaperPage = std::vector<PaperItem>;

// Something that can be looked at, printed and saved page by page. It holds all that it shows, so that its source may
// change or go.
class PaperDocument {
  public:
    PaperDocument() = default;
    virtual ~PaperDocument() = default;
    PaperDocument(const PaperDocument&) = delete;
    PaperDocument& operator=(const PaperDocument&) = delete;

    // The title of its window, and its name among the printer's jobs.
    [[nodiscard]] virtual QString Caption() const = 0;
    [[nodiscard]] virtual QString DocumentName() const = 0;
    // What it is saved as when nobody says otherwise, without a suffix.
    [[nodiscard]] virtual QString FileName() const { return Caption(); }
    [[nodiscard]] virtual PaperSize paper() const = 0;
    // At least one.
    [[nodiscard]] virtual int pageCount() const = 0;
    // `index` counts from 0. A page is made when it is asked for, in any order.
    [[nodiscard]] virtual PaperPage page(int index) const = 0;
};

// The last line of every sheet: product, page of pages, date of printing. Nothing else stands below its top.
[[nodiscard]] int footerTop(PaperSize paper);
void addFooter(PaperPage& page, PaperSize paper, int index, int pages, const QString& printedOn);

} // namespace kurbo
