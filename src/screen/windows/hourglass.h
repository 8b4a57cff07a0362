#pragma once

#include <QApplication>

namespace kurbo {

// The wait cursor, for as long as it lives.
class Hourglass final {
  public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

// The normal pointer over an hourglass, for as long as it lives: somebody is asked.
class NormalPointer final {
  public:
    NormalPointer() : over_(QApplication::overrideCursor() != nullptr) {
        if (over_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~NormalPointer() {
        if (over_) QApplication::restoreOverrideCursor();
    }
    NormalPointer(const NormalPointer&) = delete;
    NormalPointer& operator=(const NormalPointer&) = delete;

  private:
    bool over_;
};

} // namespace kurbo
