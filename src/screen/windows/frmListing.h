#pragma once

#include <QMainWindow>
#include <QPlainTextEdit>

namespace kurbo {

// A plain reader for a listing, where the desktop has none.
class frmListing final : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmListing(const QString& path, QWidget* parent = nullptr);

  private:
    void dress();
    void print();

    QPlainTextEdit* txtListing_;
};

} // namespace kurbo
