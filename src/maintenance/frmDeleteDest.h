#pragma once

#include "maintenance/destinations.h"
#include "screen/windows/screen_form.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmDeleteDest;
}

// Destinations that no outing refers to, to be deleted.
class frmDeleteDest final : public ScreenForm {
    Q_OBJECT

  public:
    explicit frmDeleteDest(Client& client, QWidget* parent = nullptr);
    ~frmDeleteDest() override;

    void load();

  protected:
    [[nodiscard]] bool hasConnection() override;
    // No row is selected until the person selects one.
    void showState() override {}

  private:
    [[nodiscard]] RowSpan selectedRows() const;
    void select(RowSpan rows);
    void deleteChosen();

    const std::unique_ptr<Ui::frmDeleteDest> ui_;
    DestinationList list_;
};

} // namespace kurbo
