#pragma once

#include <QList>
#include <QPixmap>
#include <QString>

class QWidget;

namespace kurbo {

// Takes pictures of windows: each goes into the folder as a PNG, and all of them into one PDF.
class Camera final {
  public:
    explicit Camera(QString folder) : folder_(std::move(folder)) {}
    // Lets the window paint itself first. `title` is the picture's caption and, after its number, its file's name.
    void shoot(QWidget& window, const QString& title);
    // Writes the PDF, a picture a page; false when it can't be written.
    [[nodiscard]] bool writePdf(const QString& name) const;
    [[nodiscard]] qsizetype count() const { return pictures_.size(); }

  private:
    struct Picture {
        QString title;
        QPixmap pixels;
    };
    QString folder_;
    QList<Picture> pictures_;
};

} // namespace kurbo
