#pragma once

#include "store/client.h"
#include "store/readers.h"
#include "totals/total_rules.h"
#include "totals/total_update.h"
#include "totals/totals.h"

namespace kurbo {

// The two boxes for the months, "yyyy/mm", as they stand.
struct MonthBoxes {
    QString start;
    QString end;
};

// What frmTotal works on, without its window: which months of whom stand in the grid, and the commands. A refusal or a
// failure is told here and leaves everything as it was; the window then shows again what stands here.
class TotalScreen final {
  public:
    explicit TotalScreen(Client& client);

    // This month of the own section.
    bool load();
    // Back to the person's own file and rights.
    void leave();
    // The question before changes are lost; true to go on.
    [[nodiscard]] bool mayDiscard() const;

    // What the person has typed there, told before each command: it works on these months. Drawing sets them.
    MonthBoxes boxes;

    // Each shows the totals anew. An empty staff code stands for the whole section.
    bool chooseSection(const QString& section);
    bool chooseStaff(const QString& staff);
    // The one month, 1 to 12, of the chosen year.
    bool chooseMonth(int month);
    bool moveYears(int years);
    bool chooseOrder(bool byStaff);
    bool display();

    // The same totals once more, after the store has changed.
    bool reload();

    // The changed figures into the saved months; and the saved months of the boxes out of the store.
    bool update();
    bool deleteMonths();
    // The shown grid with its span into a card file, and one out of a file, which is only looked at until totals are
    // drawn again.
    bool saveKrb();
    bool loadKrb();
    // The saved months of the shown span into a CSV file.
    bool saveCsv();

    TotalSheet sheet;

    [[nodiscard]] const QList<CodeName>& sections() const { return sections_; }
    [[nodiscard]] const QList<CodeName>& people() const { return people_; }
    [[nodiscard]] const QString& section() const { return question_.section; }
    [[nodiscard]] const QString& staff() const { return question_.staff; }
    [[nodiscard]] MonthSpan span() const { return {question_.from, question_.to}; }
    [[nodiscard]] bool byStaff() const { return question_.byStaff; }
    [[nodiscard]] int year() const { return static_cast<int>(question_.to.year()); }
    // How often the span has been set: the two boxes then show it.
    [[nodiscard]] int spanChanges() const { return spanChanges_; }
    // Whether totals are shown at all.
    [[nodiscard]] bool isAlive() const { return alive_; }
    [[nodiscard]] bool mayDelete() const;
    [[nodiscard]] bool mayExchange() const;
    [[nodiscard]] int countUnit() const { return sheet.plngCountUnit; }

  private:
    [[nodiscard]] Connection& connection() const { return *client_.CurrentConnection; }
    [[nodiscard]] bool readLists();
    void readPeople();
    [[nodiscard]] std::optional<TotalsQuestion> asked() const;
    [[nodiscard]] bool draw(const std::optional<TotalsQuestion>& question);
    [[nodiscard]] bool ShowTotal(TotalsQuestion question);
    [[nodiscard]] bool ShowTotalOrNothing(const TotalsQuestion& question);
    [[nodiscard]] bool confirmsUpdate() const;
    [[nodiscard]] bool confirmsDelete(const TotalsQuestion& question) const;
    [[nodiscard]] bool leaveFile();
    [[nodiscard]] bool refusesFileMode(const QString& command) const;

    Client& client_;
    TotalRules rules_;
    QList<CodeName> sections_;
    QList<CodeName> people_;
    // Whose people are in the list.
    QString listSection_;
    TotalsQuestion question_;
    bool hasSaved_ = false;
    bool alive_ = false;
    int spanChanges_ = 0;
};

} // namespace kurbo
