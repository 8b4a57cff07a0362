#pragma once

#include "paper/paper_pdf.h"
#include "screen/windows/screen_form.h"

#include <memory>

class QPrinter;

namespace kurbo {

namespace Ui {
class frmPreview;
}
class PageView;

// A document page by page before it is printed or saved as a PDF. Only the page that is looked at is drawn.
class frmPreview final : public ScreenForm {
    Q_OBJECT

  public:
    frmPreview(std::unique_ptr<PaperDocument> document, Client& client, QWidget* parent);
    ~frmPreview() override;

    // Counted from 0; a page before the first or behind the last is that one.
    [[nodiscard]] int Page() const { return page_; }
    void showPage(int index);

    // Prints on a printer that the person has set up. Failures are reported.
    void printOn(QPrinter& printer);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    // A document holds all that it shows.
    [[nodiscard]] bool hasConnection() override { return true; }
    void showState() override;
    void fillZooms();
    void connectCommands();
    void print();
    [[nodiscard]] PageRange rangeOf(const QPrinter& printer) const;
    void savePdf();
    void zoomBy(int steps);
    void applyZoom();
    // By the key for the next (1) or the last (-1) page.
    void movePage(int direction);
    [[nodiscard]] bool isAtEdge(int direction) const;
    void turnAtEdge(int direction);
    [[nodiscard]] bool takeWheel(const QWheelEvent& wheel);

    const std::unique_ptr<Ui::frmPreview> ui_;
    const std::unique_ptr<PaperDocument> document_;
    PageView* view_;
    int page_ = 0;
    // What the wheel has moved since the last step.
    int wheel_ = 0;
};

// Closes the one that the parent has open.
void closePreview(const QWidget* parent);
// Opens the window over its parent, in the place of the one that the parent had open.
void showPreview(std::unique_ptr<PaperDocument> document, Client& client, QWidget* parent);

} // namespace kurbo
