#pragma once

#include "screen/grid/grid_model.h"
#include "screen/windows/screen_form.h"
#include "totals/csv/csv_file.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmCsv;
}

// Months out of CSV files, looked at before they are entered in the database.
class frmCsv final : public ScreenForm {
    Q_OBJECT

  public:
    // `countUnit` 0 shows decimal hours, 1 h:mm.
    frmCsv(Client& client, int countUnit, QWidget* parent);
    ~frmCsv() override;

    // Shows the months of the files until the person closes the window; true when they went into the database.
    [[nodiscard]] bool review(const QStringList& files);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void showState() override {}
    void addToDatabase();
    // Looks at the screen between two months, and whether a stop was asked for since.
    [[nodiscard]] bool takeStop();

    const std::unique_ptr<Ui::frmCsv> ui_;
    int countUnit_;
    GridModel cells_;
    QList<LoadedMonth> months_;
    bool stop_ = false;
    bool added_ = false;
};

} // namespace kurbo
