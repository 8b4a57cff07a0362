#pragma once

#include "totals/total_screen.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QAbstractButton;

namespace kurbo {

namespace Ui {
class frmTotal;
}

// Saved and calculated months of a person or a section. What is chosen and what stands in the grid is decided by
// TotalScreen.
class frmTotal final : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmTotal(Client& client, QWidget* parent = nullptr);
    ~frmTotal() override;
    frmTotal(const frmTotal&) = delete;
    frmTotal& operator=(const frmTotal&) = delete;

    // Reads the lists and shows this month of the own section.
    void load();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    static constexpr int months = 12;

    void dressFields();
    void connectSelection();
    void connectCommands();
    // Runs a command that works on the grid: the open cell is taken first, and the window then shows what stands.
    void run(const std::function<void()>& command);
    void onCommand(QAbstractButton* button, QAction* action, const std::function<void()>& command);

    void showState();
    void showNames();
    void showSpan();
    void showCommands();
    void sectionChosen();
    void staffChosen();
    void loadCsv();
    void print();

    const std::unique_ptr<Ui::frmTotal> ui_;
    Client& client_;
    TotalScreen screen_;
    // The program fills the controls, or a command runs: their events mean nothing.
    bool blnShowing_ = false;
    int spanChanges_ = 0;
};

} // namespace kurbo
