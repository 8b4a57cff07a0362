#pragma once

#include "store/client.h"
#include "totals/total_sheet.h"

namespace kurbo {

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
