#pragma once

#include <QWidget>

namespace kurbo {

// Where the main window stands, and how high it is: low while nobody is logged in; else as high as it was left the last
// time, which a person may have changed. Nothing of it holds while the window fills its screen.
class WindowPlace final {
  public:
    explicit WindowPlace(QWidget& window) : window_(window) {}

    // For the first time, where a form that is higher by so many pixels has its room too, so that the window need not
    // jump.
    void placeFor(int higher);
    // The high form is going: the next one gets its height.
    void keepHeight();
    void becomeLow() { fit(window_.minimumSizeHint().height()); }
    void becomeHigh();
    void centreAcross();

  private:
    void fit(int height);

    QWidget& window_;
    int keptHeight_ = 0;
};

} // namespace kurbo
