#pragma once

#include "settings/people/access_sheet.h"
#include "settings/settings_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmAccess;
}

// The access rights: by name, and for each section what they allow.
class frmAccess final : public SettingsForm {
    Q_OBJECT

  public:
    explicit frmAccess(Client& client, QWidget* parent = nullptr);
    ~frmAccess() override;

  protected:
    void readAll() override;

  private:
    void connectCommands();
    [[nodiscard]] int code() const;
    void showRight(const QString& code);
    void rightChosen();
    void updateRight();
    void deleteRight();
    void printRight();

    const std::unique_ptr<Ui::frmAccess> ui_;
    clsWorkTime style_;
    AccessSheet sheet_;
    AccessRules rules_{sheet_};
    QString shown_;
};

} // namespace kurbo
