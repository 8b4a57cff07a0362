#pragma once

#include <QString>

class QWidget;

namespace kurbo {

// Takes pictures of windows: each goes into the folder as a PNG.
class Camera final {
  public:
    explicit Camera(QString folder) : folder_(std::move(folder)) {}
    // Lets the window paint itself first. `title` is, after the picture's number, its file's name.
    void shoot(QWidget& window, const QString& title);
    [[nodiscard]] const QString& folder() const { return folder_; }
    [[nodiscard]] int count() const { return count_; }

  private:
    QString folder_;
    int count_ = 0;
};

} // namespace kurbo
