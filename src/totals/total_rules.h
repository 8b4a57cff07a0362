#pragma once

#include "screen/grid/grid_model.h"
#include "store/client.h"

namespace kurbo {

// The totals on the screen: the grid, and what has been done to it since it was drawn.
struct TotalSheet {
    GridModel grid;
    bool changed = false;
    // Totals out of a card file are shown.
    bool blnFileMode = false;
    int plngCountUnit = 1; // 0 decimal, 1 h:mm
    // Told after every edit.
    std::function<void()> onEdit;

    // The staff code of a person's month; empty on other rows.
    [[nodiscard]] QString staffOf(int row) const;
    // Whether the month came out of the store, where it may be corrected.
    [[nodiscard]] bool isSaved(int row) const;
    // A calculated month always names its period; without one there are no figures.
    [[nodiscard]] bool hasFigures(int row) const;
};

// The cells of the totals: the figures of a person's month, for those who may correct it.
class TotalRules final : public GridRules {
  public:
    TotalRules(TotalSheet& sheet, const Session& session) : sheet_(sheet), session_(session) {}

    [[nodiscard]] bool mayEdit(int row, int column) const override;
    [[nodiscard]] QString refusal(int row, int column, const QString& text) const override;
    void edited(int row, int column) override;
    [[nodiscard]] QString scrollTip(int row) const override;

  private:
    TotalSheet& sheet_;
    const Session& session_;
};

// Hours without the bracketed mark that may stand at either end of them.
[[nodiscard]] QString withoutMark(const QString& text);

// Whether a figure's text is a number, or hours, as its column asks for; hours may have a bracketed mark at either end.
[[nodiscard]] bool isFigure(int column, int countUnit, const QString& text);

} // namespace kurbo
