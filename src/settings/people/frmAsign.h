#pragma once

#include "settings/people/staff_settings.h"
#include "settings/settings_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmAsign;
}
class DataCombo;

// What each person works by: password, close day, paid leave, punch adjustments, work styles and access right.
class frmAsign final : public SettingsForm {
    Q_OBJECT

  public:
    explicit frmAsign(Client& client, QWidget* parent = nullptr);
    ~frmAsign() override;

    // The page of frmWorkTime, from 0, that the active button stands for; the first one without such a button.
    [[nodiscard]] int askedPage() const;

  Q_SIGNALS:
    // The screen is asked for that blocks this one until it is closed. What is added there stands in the lists at the
    // next opening.
    void workTimeAsked();
    void accessAsked();

  protected:
    void readAll() override;

  private:
    void findFields();
    void dressFields();
    void dressChoices();
    void connectCommands();
    void fillStaff(const QString& section);
    void showStaff(const QString& staff);
    void showSettings(const QString& staff, const StaffSettings& settings);
    [[nodiscard]] StaffSettings collected() const;
    [[nodiscard]] bool mayLeave();
    void sectionChosen();
    void staffChosen();
    void updateStaff();
    void deleteStaff();
    void PrintStaff();

    const std::unique_ptr<Ui::frmAsign> ui_;
    clsWorkTime style_;
    std::array<QLineEdit*, StaffSettings::fields> boxes_{};
    std::array<DataCombo*, StaffSettings::choices> combos_{};
    QString section_;
    QString staff_;
};

} // namespace kurbo
