#pragma once

#include "card/card_sheet.h"
#include "card/chosen_card.h"
#include "card/edit/card_rules.h"
#include "store/client.h"

namespace kurbo {

// The month of the card on the screen: its final sums, its record and the two approvals. A refusal or a failure is told
// here and leaves everything as it was.
class CardMonth final {
  public:
    CardMonth(Client& client, CardSheet& sheet, ChosenCard& chosen, const CardReader& reader)
        : client_(client), sheet_(sheet), chosen_(chosen), reader_(reader) {}

    // What a drawn card shows of its month.
    struct Drawn {
        bool wholePeriod = false; // a card period that has ended
        bool personalApproval = false;
        bool superiorApproval = false;
    };
    void drawn(const Drawn& card);
    // The marks of a card that is only looked at.
    void forgetApprovals() { personalApproval_ = superiorApproval_ = false; }

    // The final sums anew, out of the days' sums of the chosen month.
    bool adjust();
    // The final sums into the record of the chosen month, which loses its approvals.
    bool update();
    // Give or take back an approval of the shown month's record; `start` and `end` stand in the two boxes. False leaves
    // the mark as it was.
    bool approvePersonal(bool approved, const QString& start, const QString& end);
    bool approveSuperior(bool approved, const QString& start, const QString& end);

    [[nodiscard]] bool isWholePeriod() const { return state_ != State::NotWhole; }
    [[nodiscard]] bool personalApproval() const { return personalApproval_; }
    [[nodiscard]] bool superiorApproval() const { return superiorApproval_; }
    [[nodiscard]] bool mayAdjust() const { return showsOwnMonth(); }
    // Not just after the month has been saved: only when something may have changed since.
    [[nodiscard]] bool mayUpdate() const;
    [[nodiscard]] bool mayApprovePersonal() const;
    [[nodiscard]] bool mayApproveSuperior() const;

  private:
    // Other days than a whole card period; a period with its record, if any, as it was drawn; one just saved.
    enum class State { NotWhole, Drawn, JustSaved };
    struct Mark;

    [[nodiscard]] Connection& connection() const { return *client_.CurrentConnection; }
    // The drawn days are the whole period of the chosen month, which has ended.
    [[nodiscard]] bool showsOwnMonth() const;
    [[nodiscard]] bool isOwnMonth(const QString& command) const;
    [[nodiscard]] bool isCardSaved(const QString& demand) const;
    [[nodiscard]] bool agreesWithMissing(const QString& question, Answer preset) const;
    [[nodiscard]] bool agreesToSave() const;
    bool approve(const Mark& mark, bool approved, const QString& start, const QString& end);
    [[nodiscard]] bool storeMark(const Mark& mark, bool approved);

    Client& client_;
    CardSheet& sheet_;
    ChosenCard& chosen_;
    const CardReader& reader_;
    State state_ = State::NotWhole;
    bool personalApproval_ = false;
    bool superiorApproval_ = false;
};

} // namespace kurbo
