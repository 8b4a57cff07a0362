#pragma once

#include "card/card_sheet.h"
#include "card/edit/card_rules.h"
#include "engine/hours.h"
#include "store/client.h"
#include "store/readers.h"

namespace kurbo {

// What frmKurbo works on, without its window: whose card of which period stands in the grid, what may be done with it,
// and the commands. A refusal or a failure is told here and leaves everything as it was; the window then shows again
// what stands here.
class CardScreen final {
  public:
    explicit CardScreen(Client& client);

    // The own card of the period of today, or of the calendar's first day where today has none. False leaves a screen
    // on which nothing can be done but closing it.
    [[nodiscard]] bool load();
    // Back to the person's own file and rights.
    void leave();

    // The questions before changes are lost; true to go on.
    [[nodiscard]] bool mayDiscard() const;
    [[nodiscard]] bool mayClose() const;

    // Another section: its people can be chosen, and the old card stays until one is.
    bool chooseSection(const QString& section);
    // Another person's card, of the period of the same month. Empty for none.
    bool chooseStaff(const QString& staff);
    // The period that ends in the month, 1 to 12, of the chosen year.
    bool chooseMonth(int month);
    // The shown dates and the year, moved by so many years.
    bool moveYears(int years, const QString& start, const QString& end);
    // Any range, as it stands in the two boxes.
    bool display(const QString& start, const QString& end);
    // The changed days into the store; the card is drawn anew.
    bool update(const QString& start, const QString& end);
    // The shown person's days of the range out of the store.
    bool deletePeriod(const QString& start, const QString& end);

    // The final sums anew, out of the days' sums of the chosen month.
    bool adjust();
    // The final sums into the record of the chosen month, which loses its approvals.
    bool updateMonthly();
    // Give or take back an approval of the shown month's record; `start` and `end` stand in the two boxes. False leaves
    // the mark as it was.
    bool approvePersonal(bool approved, const QString& start, const QString& end);
    bool approveSuperior(bool approved, const QString& start, const QString& end);

    // The shown card into a card file, and one out of a file, which is only looked at until a card is drawn again.
    bool saveKrb(const QString& start, const QString& end);
    bool loadKrb();

    CardSheet sheet;
    // Asked last before another card or period is shown: whether what stands beside the card may go.
    std::function<bool()> mayLeaveDay;

    // The lists, and with them the names that a shown card file brings.
    [[nodiscard]] QList<CodeName> sections() const;
    [[nodiscard]] QList<CodeName> people() const;
    [[nodiscard]] const QString& section() const { return section_; }
    [[nodiscard]] const QString& staff() const { return staff_; }
    [[nodiscard]] Period period() const { return period_; }
    [[nodiscard]] int year() const { return year_; }
    [[nodiscard]] int month() const { return month_; }
    // The name of the card file that is shown; empty for a card out of the store.
    [[nodiscard]] QString fileName() const { return sheet.blnFileMode ? file_.name : QString(); }
    [[nodiscard]] const clsWorkTime& rules() const { return rules_; }
    [[nodiscard]] const CardRules& cells() const { return cells_; }

    // How often the period has been set, by a drawing or by a command of the month: the two boxes then show it.
    [[nodiscard]] int periodChanges() const { return periodChanges_; }
    // How often a card has been drawn.
    [[nodiscard]] int drawings() const { return drawings_; }
    // A card is shown, and the commands of the screen are alive.
    [[nodiscard]] bool isAlive() const { return alive_; }
    [[nodiscard]] bool isWholePeriod() const { return wholePeriod_; }
    [[nodiscard]] bool personalApproval() const { return personalApproval_; }
    [[nodiscard]] bool superiorApproval() const { return superiorApproval_; }
    [[nodiscard]] bool mayChooseOthers() const;
    [[nodiscard]] bool mayDelete() const;
    [[nodiscard]] bool mayGoOut() const;
    [[nodiscard]] bool mayAdjust() const { return showsOwnMonth(); }
    // Not just after the month has been saved: only when something may have changed since.
    [[nodiscard]] bool mayUpdateMonthly() const;
    [[nodiscard]] bool mayApprovePersonal() const { return isCardShown() && approvable_ && isOwnCard(); }
    [[nodiscard]] bool mayApproveSuperior() const;
    [[nodiscard]] bool isOwnCard() const { return reader_.blnMyCard; }
    // The row of today, 0 without one.
    [[nodiscard]] int todayRow() const;

  private:
    [[nodiscard]] Connection& connection() const { return *client_.CurrentConnection; }
    [[nodiscard]] bool readLists();
    void readPeople();
    [[nodiscard]] bool loadRules(const QString& staff, clsWorkTime& rules) const;
    [[nodiscard]] std::optional<Day> baseDate() const;
    [[nodiscard]] bool hasCalendarIn(Period period) const;
    void choosePeriod(Period period);
    [[nodiscard]] bool leaveFile();
    [[nodiscard]] bool ShowKurbo(const QString& staff, Period period, clsWorkTime& rules);
    [[nodiscard]] bool redraw(Period period);
    [[nodiscard]] bool drawStored(Period period);
    [[nodiscard]] bool hasName() const;
    void setPeriod(Period period);
    // The card is that of the name that is chosen.
    [[nodiscard]] bool isCardShown() const { return alive_ && reader_.cardShown; }
    // The drawn days are the whole period of the chosen month, which has ended.
    [[nodiscard]] bool showsOwnMonth() const;
    [[nodiscard]] bool isOwnMonth(const QString& command) const;
    [[nodiscard]] bool isCardSaved(const QString& demand) const;
    [[nodiscard]] bool agreesWithMissing(const QString& question, Answer preset) const;
    [[nodiscard]] bool agreesToSave() const;
    void readFileNames();
    struct Mark;
    bool approve(const Mark& mark, bool approved, const QString& start, const QString& end);
    [[nodiscard]] bool storeMark(const Mark& mark, bool approved);

    Client& client_;
    clsWorkTime rules_;
    CardReader reader_;
    CardRules cells_;
    QList<CodeName> sections_;
    QList<CodeName> people_;
    QString section_;
    // Whose people are in the list.
    QString listSection_;
    QString staff_;
    // What the two boxes show, and what stands in the grid.
    Period period_{};
    Period drawn_{};
    int year_ = 0;
    int month_ = 1;
    int periodChanges_ = 0;
    int drawings_ = 0;
    bool alive_ = false;
    bool wholePeriod_ = false;
    // The month's record can be approved, and the final sums haven't just been saved.
    bool approvable_ = false;
    bool monthUnsaved_ = false;
    bool personalApproval_ = false;
    bool superiorApproval_ = false;
    // Of a card file: its name, and whose card it holds where the lists don't have them.
    struct {
        QString name;
        QList<CodeName> section;
        QList<CodeName> person;
    } file_;
};

} // namespace kurbo
