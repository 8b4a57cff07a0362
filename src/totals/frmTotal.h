#pragma once

#include "screen/windows/screen_form.h"
#include "totals/total_screen.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmTotal;
}

// Saved and calculated months of a person or a section. What is chosen and what stands in the grid is decided by
// TotalScreen.
class frmTotal final : public ScreenForm {
    Q_OBJECT

  public:
    explicit frmTotal(Client& client, QWidget* parent = nullptr);
    ~frmTotal() override;

    // Reads the lists and shows this month of the own section.
    void load();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    static constexpr int months = 12;

    void dressFields();
    void connectSelection();
    void connectCommands();

    [[nodiscard]] Command withMonths(const Command& command);
    void showState() override;
    void showNames();
    void showSpan();
    void showCommands() override;
    void sectionChosen();
    void staffChosen();
    void loadCsv();
    void print();

    const std::unique_ptr<Ui::frmTotal> ui_;
    TotalScreen screen_;
    int spanChanges_ = 0;
};

} // namespace kurbo
