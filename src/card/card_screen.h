#pragma once

#include "card/card_month.h"
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

    // The shown card into a card file, and one out of a file, which is only looked at until a card is drawn again.
    bool saveKrb(const QString& start, const QString& end);
    bool loadKrb();

    CardSheet sheet;
    // Asked last before another card or period is shown: whether what stands beside the card may go.
    std::function<bool()> mayLeaveDay;

    // The lists, and with them the names that a shown card file brings.
    [[nodiscard]] QList<CodeName> sections() const;
    [[nodiscard]] QList<CodeName> people() const;
    [[nodiscard]] const ChosenCard& chosen() const { return chosen_; }
    // The commands of its month.
    [[nodiscard]] CardMonth& month() { return month_; }
    // The name of the card file that is shown; empty for a card out of the store.
    [[nodiscard]] QString fileName() const { return sheet.blnFileMode ? file_.name : QString(); }
    [[nodiscard]] const CardRules& cells() const { return cells_; }

    // How often a card has been drawn.
    [[nodiscard]] int drawings() const { return drawings_; }
    // A card is shown, and the commands of the screen are alive.
    [[nodiscard]] bool isAlive() const { return drawings_ > 0; }
    [[nodiscard]] bool mayChooseOthers() const;
    [[nodiscard]] bool mayDelete() const;
    [[nodiscard]] bool mayGoOut() const;
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
    void readFileNames();

    Client& client_;
    ChosenCard chosen_;
    CardReader reader_;
    CardRules cells_;
    CardMonth month_;
    QList<CodeName> sections_;
    QList<CodeName> people_;
    // Whose people are in the list.
    QString listSection_;
    int drawings_ = 0;
    // Of a card file: its name, and whose card it holds where the lists don't have them.
    struct {
        QString name;
        QList<CodeName> section;
        QList<CodeName> person;
    } file_;
};

} // namespace kurbo
