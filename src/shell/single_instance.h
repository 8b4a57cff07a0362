#pragma once

#include <QLockFile>
#include <QString>

namespace kurbo {

// One client per application folder and machine. A client that crashed does not count.
class SingleInstance final {
  public:
    explicit SingleInstance(const QString& appFolder);
    [[nodiscard]] bool isFirst() const { return first_; }

  private:
    QLockFile lock_;
    bool first_;
};

} // namespace kurbo
