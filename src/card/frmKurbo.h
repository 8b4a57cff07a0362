#pragma once

#include "card/card_screen.h"
#include "screen/windows/screen_form.h"

#include <array>
#include <memory>

class QRadioButton;

namespace kurbo {

namespace Ui {
class frmKurbo;
}
class frmGoOut;

// The card of one person and period. What is chosen and what stands in the grid is decided by CardScreen.
class frmKurbo final : public ScreenForm {
    Q_OBJECT

  public:
    explicit frmKurbo(Client& client, QWidget* parent = nullptr);
    ~frmKurbo() override;

    // Reads the lists and shows the own card.
    void load();

  Q_SIGNALS:
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    static constexpr int months = 12;

    void dressFields();
    void connectSelection();
    void connectCommands();
    void connectMonth();

    void showState() override;
    void showNames();
    void showPeriod();
    void showTop();
    void showCommands() override;
    void showApproval();
    void sectionChosen();
    void staffChosen();
    void moveYear(int years);
    void showDetail(const QModelIndex& cell);
    void print();
    [[nodiscard]] CodeName chosenSection() const;
    [[nodiscard]] CodeName chosenStaff() const;

    void connectGoOut();
    [[nodiscard]] bool isGoOutOpen() const;
    void openGoOut();
    void listGoOut();
    void showGoOutDay();
    void followRow();
    void backToGoOutDay();
    void refreshGoOut();
    // False when the person keeps it.
    [[nodiscard]] bool closeGoOut();

    const std::unique_ptr<Ui::frmKurbo> ui_;
    CardScreen screen_;
    std::array<QRadioButton*, months> optMonth_{};
    int periodChanges_ = 0;
    // Whose card of which days was drawn last.
    QString drawnStaff_;
    Period drawnPeriod_{};
    int drawings_ = 0;

    std::unique_ptr<frmGoOut> frmGoOut_;
    // The date cell of the day that it shows, and the drawing of the card from which that was taken.
    QString goOutDate_;
    int goOutDrawing_ = 0;
    bool goOutAsking_ = false;
};

} // namespace kurbo
