#pragma once

#include "card/outings/go_out_rules.h"
#include "store/client.h"

namespace kurbo {

// What frmGoOut works on, without its window: the outings of one day of a card, and the commands. A refusal or a
// failure is told here and leaves everything as it was.
class GoOut final {
  public:
    explicit GoOut(Client& client);

    // Whose card the days belong to, empty for nobody's, and whether it is the reader's own. Without the right to see
    // that person's outings the list is empty from now on.
    void setPerson(const QString& staff, bool blnMyCard);
    // Shows the outings of a card row, a number, of the day that stands in the first 8 characters "yy/mm/dd". Without
    // one of the two, and after a failure, the list is empty and can't be edited.
    void ShowGoOut(const QString& cardKey, const QString& dateText);

    // An empty row above the given one, or that row away, once the person has agreed; true when it is done.
    bool insertRow(int row);
    bool deleteRow(int row);

    // Checks all that stands in the list; false after the first refusal.
    [[nodiscard]] bool CheckData() const;
    // The checked list into the store, in place of the day's outings there; false after a reported failure.
    [[nodiscard]] bool UpdateGoOut();
    // Both of these, with the question in between.
    bool update();

    // The question before another day is shown; changes that are given up go at once.
    [[nodiscard]] bool mayLeaveDay();
    [[nodiscard]] bool mayClose() const;

    // Says so where the person's outings may not be seen.
    [[nodiscard]] bool mayPrint() const;
    [[nodiscard]] bool mayDelete() const { return sheet.mayWrite() && sheet.grid.Rows() > firstGoOut; }

    GoOutSheet sheet;

  private:
    [[nodiscard]] Connection& connection() const { return *client_.CurrentConnection; }
    [[nodiscard]] bool hasConnection() const;
    void showDay(std::int64_t key);
    void offerDestinations();

    Client& client_;
    GoOutRules rules_;
    bool readable_ = true;
};

} // namespace kurbo
