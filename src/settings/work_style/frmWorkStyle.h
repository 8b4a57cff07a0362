#pragma once

#include "settings/settings_form.h"
#include "settings/work_style/work_style.h"

#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include <memory>

namespace kurbo {

namespace Ui {
class frmWorkStyle;
}
class MaskedBox;

// How the company works: flex working, half holidays, rounding, and which totals are shown.
class frmWorkStyle final : public SettingsForm {
    Q_OBJECT

  public:
    explicit frmWorkStyle(Client& client, QWidget* parent = nullptr);
    ~frmWorkStyle() override;

  protected:
    void readAll() override;
    void fieldChanged() override;

  private:
    using Options = std::vector<QRadioButton*>;
    // The controls of one kind of half holiday.
    struct HalfDay {
        QCheckBox* exists;
        Options work;
        QCheckBox* flex;
        QLabel* label;
        MaskedBox* standard;
    };

    [[nodiscard]] Options options(const QString& name, int count) const;
    void dressFields();
    void connectCommands();
    void LoadWorkStyle();
    void UpdateWorkStyle();
    void PrintWorkStyle();
    [[nodiscard]] WorkStyle collected() const;
    static WorkStyle::HalfDay collected(const HalfDay& half);
    static void showHalfDay(const HalfDay& half, const WorkStyle::HalfDay& values);
    void enableFields();
    static void enable(const HalfDay& half);

    const std::unique_ptr<Ui::frmWorkStyle> ui_;
    HalfDay am_;
    HalfDay pm_;
    Options optMethod_;
    Options optEnter_;
    Options optLeave_;
    Options optHour_;
    Options optRound_;
    std::array<QCheckBox*, WorkStyle::displays> chkDisplay_{};
};

} // namespace kurbo
