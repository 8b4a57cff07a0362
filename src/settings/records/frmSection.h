#pragma once

#include "settings/records/record_list_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmSection;
}

// The sections of the company, and in which file each one's data lie.
class frmSection final : public RecordListForm {
    Q_OBJECT

  public:
    explicit frmSection(Client& client, QWidget* parent = nullptr);
    ~frmSection() override;

  private:
    void browse();

    const std::unique_ptr<Ui::frmSection> ui_;
};

} // namespace kurbo
