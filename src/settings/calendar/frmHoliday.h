#pragma once

#include "screen/windows/screen_form.h"
#include "settings/calendar/holiday_sheet.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmHoliday;
}

// Rules by which days off are set in the year that the calendar shows. They are gone when it closes; what they set is
// stored with the calendar.
class frmHoliday final : public ScreenForm {
    Q_OBJECT

  public:
    // The calendar lives longer than this window.
    frmHoliday(Client& client, CalendarSheet& calendar, QWidget* parent);
    ~frmHoliday() override;

  protected:
    [[nodiscard]] bool hasConnection() override { return true; }
    void showState() override {}

  private:
    void addHolidays();
    // The year that "Holiday.txt" names.
    void showYear();
    void write();

    const std::unique_ptr<Ui::frmHoliday> ui_;
    CalendarSheet& calendar_;
    HolidaySheet rules_;
    HolidayCells cells_{rules_};
};

} // namespace kurbo
