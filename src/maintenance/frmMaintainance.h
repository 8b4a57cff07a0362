#pragma once

#include "maintenance/move_order.h"
#include "screen/windows/screen_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmMaintainance;
}

// Moves an old stretch of days into another database.
class frmMaintainance final : public ScreenForm {
    Q_OBJECT

  public:
    explicit frmMaintainance(Client& client, QWidget* parent = nullptr);
    ~frmMaintainance() override;

    void load();

  protected:
    [[nodiscard]] bool hasConnection() override;
    void showState() override { SetExecEnabled(); }

  private:
    void dressFields();
    void SetExecEnabled();
    [[nodiscard]] MoveOrder order() const;
    void showOrder(const MoveOrder& order);
    void browse();
    void move();

    const std::unique_ptr<Ui::frmMaintainance> ui_;
};

} // namespace kurbo
