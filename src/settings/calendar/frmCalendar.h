#pragma once

#include "settings/calendar/calendar.h"
#include "settings/settings_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmCalendar;
}

// A year of the company's calendar: the names of its days, and which are holidays.
class frmCalendar final : public SettingsForm {
    Q_OBJECT

  public:
    explicit frmCalendar(Client& client, QWidget* parent = nullptr);
    ~frmCalendar() override;

  protected:
    void readAll() override;
    void showState() override;

  private:
    void dressFields();
    void connectCommands();
    void moveYear(int years);
    void updateCalendar();
    void print();
    void openHoliday();

    const std::unique_ptr<Ui::frmCalendar> ui_;
    Calendar calendar_;
};

} // namespace kurbo
