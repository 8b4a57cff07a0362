#pragma once

#include <QWidget>

#include <functional>

namespace kurbo {

// Keeps the focus in a field, a text box or a combo, until what stands in it is good. When a person leaves it by
// keyboard or mouse and `isGood` says no, the click that left it does nothing else, the field gets the focus back with
// its text selected, and then `refuse` tells why. Nothing is asked on the way to "cmdCancel", to a menu, a
// popup or another window, by a click on "cmdDB", which puts another path into the field, and when the program moves
// the focus, hides or disables the field or closes its window.
class LeaveCheck final : public QObject {
  public:
    // The field owns the check.
    LeaveCheck(QWidget* field, std::function<bool()> isGood, std::function<void()> refuse);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void left(Qt::FocusReason reason);
    void goBack();

    QWidget* field_;
    std::function<bool()> isGood_;
    std::function<void()> refuse_;
    bool goingBack_ = false;
};

} // namespace kurbo
