#pragma once

#include "settings/people/password.h"
#include "settings/settings_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmPassword;
}

// A person's change of the own password. The confirmation shows once a new password is typed, and OK opens once a
// confirmation is.
class frmPassword final : public SettingsForm {
    Q_OBJECT

  public:
    explicit frmPassword(Client& client, QWidget* parent = nullptr);
    ~frmPassword() override;

  protected:
    void readAll() override {}
    [[nodiscard]] bool mayClose() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void checkBoxes();
    void wantedChanged();
    void askForOld();
    [[nodiscard]] bool isOldRight();
    void acceptChange();
    void refuse(const PasswordRefusal& refusal);

    const std::unique_ptr<Ui::frmPassword> ui_;
    bool stored_ = false;
};

} // namespace kurbo
