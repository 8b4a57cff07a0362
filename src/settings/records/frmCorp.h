#pragma once

#include "settings/records/record_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmCorp;
}

// The company itself.
class frmCorp final : public RecordForm {
    Q_OBJECT

  public:
    explicit frmCorp(Client& client, QWidget* parent = nullptr);
    ~frmCorp() override;

  protected:
    void readAll() override;

  private:
    void UpdateCorp();

    const std::unique_ptr<Ui::frmCorp> ui_;
};

} // namespace kurbo
