#pragma once

#include <QMainWindow>

namespace kurbo {

// A plain reader for a listing, where the desktop has none.
class frmListing final : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmListing(const QString& path, QWidget* parent = nullptr);
};

} // namespace kurbo
