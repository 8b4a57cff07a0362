#pragma once

#include "settings/calendar/calendar_sheet.h"
#include "store/client.h"

#include <QSet>

namespace kurbo {

// The company's calendar in the home file: which year is shown, and which may be made.
class Calendar final {
  public:
    explicit Calendar(Client& client) : client_(client) { sheet.grid.setRules(&rules_); }
    Calendar(const Calendar&) = delete;
    Calendar& operator=(const Calendar&) = delete;

    CalendarSheet sheet;

    // Reads the kinds of holiday and shows this year, or the oldest there is. An empty calendar gets this year. Throws.
    void load();
    // Goes `years` on, or back below 0. Asks before `changed` days are given up and before a year is made. True when
    // the year is shown; whatever kept it from that has been told.
    [[nodiscard]] bool moveYear(int years, bool changed);
    // Shows the stored days of the same year again; a failure is told.
    void showAgain();

  private:
    [[nodiscard]] bool mayMake(int year, bool later) const;
    // Asks once for each year that has some of its days only, as a data move leaves it.
    void offerMissingDays(int year);

    Client& client_;
    CalendarRules rules_{sheet};
    QSet<int> offered_;
};

} // namespace kurbo
