#pragma once

#include "card/outings/go_out_sheet.h"
#include "screen/grid/grid_rules.h"

namespace kurbo {

// The cells of a day's outings: who may change them, what they take, and what follows from their change.
class GoOutRules final : public GridRules {
  public:
    // The last expense to a place, of 0 and less for none.
    using LastExpense = std::function<std::int64_t(const QString& destination)>;
    GoOutRules(GoOutSheet& sheet, LastExpense lastExpense) : sheet_(sheet), lastExpense_(std::move(lastExpense)) {}

    [[nodiscard]] bool mayEdit(int row, int column) const override;
    [[nodiscard]] QString refusal(int row, int column, const QString& text) const override;
    void edited(int row, int column) override;
    [[nodiscard]] QString tip(int row, int column) const override;
    [[nodiscard]] bool isJapanese(int column) const override;

  private:
    GoOutSheet& sheet_;
    LastExpense lastExpense_;
};

// Why a row can't be written as it stands; empty when it can.
[[nodiscard]] QString goOutRowRefusal(const GoOutSheet& sheet, int row);

} // namespace kurbo
