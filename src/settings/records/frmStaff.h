#pragma once

#include "settings/records/record_list_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmStaff;
}

// The people of the company.
class frmStaff final : public RecordListForm {
    Q_OBJECT

  public:
    explicit frmStaff(Client& client, QWidget* parent = nullptr);
    ~frmStaff() override;

  protected:
    void recordShown() override;
    void recordMade() override;
    void fieldChanged() override { recordShown(); }
    [[nodiscard]] QStringList listing() const override;

  private:
    const std::unique_ptr<Ui::frmStaff> ui_;
};

} // namespace kurbo
