#pragma once

#include "card/card_sheet.h"
#include "engine/work_time.h"
#include "screen/grid/grid_rules.h"
#include "store/access.h"

namespace kurbo {

// Whose card stands in the grid, and what its reader may do there.
struct CardReader {
    const AccessRights& access;
    // The card is the reader's own.
    bool blnMyCard = true;
    // The name that is chosen is the one whose card is shown.
    bool cardShown = false;
};

// The "My" or the "Other" right of a card.
[[nodiscard]] bool hasRight(const CardReader& reader, Right my, Right other);

// The cells of the card: who may change which, what they take, and what their change means.
class CardRules final : public GridRules {
  public:
    CardRules(CardSheet& sheet, const CardReader& reader, const clsWorkTime& rules)
        : sheet_(sheet), reader_(reader), rules_(rules) {}

    // The list of the leave columns: only the half days that the company has.
    [[nodiscard]] QString PaidKindList() const;

    [[nodiscard]] bool mayEdit(int row, int column) const override;
    [[nodiscard]] QString comboList(int row, int column) const override;
    [[nodiscard]] QString refusal(int row, int column, const QString& text) const override;
    // A double click on a punch shows its seconds.
    [[nodiscard]] bool opensByClick(int row, int column) const override { return detail(row, column).isEmpty(); }
    void edited(int row, int column) override;
    [[nodiscard]] QString tip(int row, int column) const override;
    [[nodiscard]] QString closedTip(int row, int column) const override;
    [[nodiscard]] QString scrollTip(int row) const override;
    [[nodiscard]] bool isJapanese(int column) const override;

    // The punch of a day row to the second, as a line to be shown; empty on other cells and without that punch.
    [[nodiscard]] QString detail(int row, int column) const;

  private:
    CardSheet& sheet_;
    const CardReader& reader_;
    const clsWorkTime& rules_;
};

} // namespace kurbo
