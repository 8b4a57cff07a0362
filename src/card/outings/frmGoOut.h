#pragma once

#include "card/outings/go_out.h"
#include "engine/hours.h"
#include "screen/windows/screen_form.h"
#include "store/readers.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmGoOut;
}

// The outings of one day of a card, beside that card. What is done with them is decided by GoOut.
class frmGoOut final : public ScreenForm {
    Q_OBJECT

  public:
    explicit frmGoOut(Client& client, QWidget* parent = nullptr);
    ~frmGoOut() override;

    // The period that is printed.
    void setPeriod(Period period);
    // Whose card the days belong to, empty for nobody's, and whether it is the reader's own.
    void setPerson(const CodeName& section, const CodeName& staff, bool blnMyCard);
    // Shows the day of a card row by its key and its date "yy/mm/dd(aaa)". Without one of the two the list is empty and
    // can't be edited.
    void ShowGoOut(const QString& cardKey, const QString& dateText);

    // Whether the shown day has changes, or a cell that is being typed into.
    [[nodiscard]] bool isChanged() const;
    // The question before another day is shown; false when the person stays with this one. Changes that are given up
    // go at once.
    [[nodiscard]] bool mayLeaveDay();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void dressFields();
    void connectCommands();
    void print();
    void insertRow();
    void showState() override { showCommands(); }
    void showCommands() override;

    const std::unique_ptr<Ui::frmGoOut> ui_;
    GoOut goOut_;
    CodeName section_;
    CodeName staff_;
};

} // namespace kurbo
