#include "paper/frmPreview.h"

#include "base/product.h"
#include "base/system/files.h"
#include "paper/page_view.h"
#include "paper/paper_pdf.h"
#include "screen/windows/hourglass.h"
#include "screen/windows/show_now.h"
#include "ui_frmPreview.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <span>

namespace kurbo {
namespace {

constexpr int wholePage = 0;
constexpr int wholeWidth = -1;
// Percent, in the order of the list.
constexpr std::array zooms{wholePage, wholeWidth, 50, 75, 100, 125, 150, 200, 300};
// The screen's inch: what 100 percent means.
constexpr int screenDots = 96;

QString zoomName(int zoom) {
    if (zoom == wholePage) return QStringLiteral("ページ全体");
    if (zoom == wholeWidth) return QStringLiteral("ページ幅");
    return QString::number(zoom) + u'%';
}

// Slashes part folders.
QString fileName(QString name) {
    for (const QChar sign : QStringLiteral("/\\:*?\"<>|")) name.replace(sign, u'-');
    return name;
}

bool turnsPages(const QKeyEvent& event) {
    return event.key() == Qt::Key_PageDown || event.key() == Qt::Key_PageUp;
}

} // namespace

frmPreview::frmPreview(std::unique_ptr<PaperDocument> document, Client& client, QWidget* parent)
    : ScreenForm(client, parent),
      ui_(std::make_unique<Ui::frmPreview>()),
      document_(std::move(document)),
      view_(new PageView(*document_)) {
    ui_->setupUi(this);
    dressAs(document_->Caption());
    ui_->scrPage->setWidget(view_);
    ui_->scrPage->viewport()->installEventFilter(this);
    for (QWidget* const field : {static_cast<QWidget*>(ui_->scrPage), static_cast<QWidget*>(ui_->txtPage),
                                 static_cast<QWidget*>(ui_->cboZoom)})
        field->installEventFilter(this);
    ui_->txtPage->setMaximum(document_->pageCount());
    ui_->lblPages->setText(QStringLiteral("/ %1").arg(document_->pageCount()));
    fillZooms();
    connectCommands();
    showPage(0);
    ui_->scrPage->setFocus();
    fillScreen(this, {1360, 990});
}

frmPreview::~frmPreview() {
    putAway();
}

void frmPreview::fillZooms() {
    for (const int zoom : zooms) ui_->cboZoom->addItem(zoomName(zoom), zoom);
}

void frmPreview::connectCommands() {
    onCommand(ui_->cmdPrint, nullptr, [this] { print(); });
    onCommand(ui_->cmdPdf, nullptr, [this] { savePdf(); });
    connect(ui_->cmdClose, &QPushButton::clicked, this, &QWidget::close);
    connect(ui_->cmdFirst, &QPushButton::clicked, this, [this] { showPage(0); });
    connect(ui_->cmdBack, &QPushButton::clicked, this, [this] { showPage(page_ - 1); });
    connect(ui_->cmdNext, &QPushButton::clicked, this, [this] { showPage(page_ + 1); });
    connect(ui_->cmdLast, &QPushButton::clicked, this, [this] { showPage(document_->pageCount() - 1); });
    connect(ui_->txtPage, &QSpinBox::valueChanged, this, [this](int page) { showPage(page - 1); });
    connect(ui_->cboZoom, &QComboBox::currentIndexChanged, this, &frmPreview::applyZoom);
    for (const auto& [keys, button] :
         {std::pair{QKeySequence::Print, ui_->cmdPrint}, {QKeySequence::Save, ui_->cmdPdf}})
        connect(new QShortcut(keys, this), &QShortcut::activated, button, &QAbstractButton::click);
}

void frmPreview::showPage(int index) {
    page_ = std::clamp(index, 0, document_->pageCount() - 1);
    ui_->txtPage->setValue(page_ + 1);
    showState();
    applyZoom();
}

void frmPreview::showState() {
    const bool hasBefore = page_ > 0;
    const bool hasMore = page_ < document_->pageCount() - 1;
    ui_->cmdFirst->setEnabled(hasBefore);
    ui_->cmdBack->setEnabled(hasBefore);
    ui_->cmdNext->setEnabled(hasMore);
    ui_->cmdLast->setEnabled(hasMore);
}

void frmPreview::applyZoom() {
    const int zoom = ui_->cboZoom->currentData().toInt();
    // With its scroll bars away, so that a page that fits doesn't get any.
    const QSize room = ui_->scrPage->maximumViewportSize();
    const int bar = ui_->scrPage->verticalScrollBar()->sizeHint().width();
    const int dots = zoom == wholePage    ? view_->fitting(room, true)
                     : zoom == wholeWidth ? view_->fitting(room - QSize(bar, 0), false)
                                          : zoom * screenDots / 100;
    view_->show(page_, dots);
}

// From what fits, to the next size of the list; at the small end to the whole page, if that is smaller still.
void frmPreview::zoomBy(int steps) {
    const int now = view_->dotsPerInch() * 100 / screenDots;
    const auto sizes = std::span(zooms).subspan(2);
    const auto larger = std::ranges::upper_bound(sizes, now) - sizes.begin();
    const auto smaller = std::ranges::lower_bound(sizes, now) - sizes.begin() - 1;
    if (steps > 0 && larger < std::ssize(sizes)) ui_->cboZoom->setCurrentIndex(static_cast<int>(larger) + 2);
    if (steps > 0) return;
    const bool wholeIsSmaller = view_->fitting(ui_->scrPage->maximumViewportSize(), true) < view_->dotsPerInch();
    if (smaller >= 0)
        ui_->cboZoom->setCurrentIndex(static_cast<int>(smaller) + 2);
    else if (wholeIsSmaller)
        ui_->cboZoom->setCurrentIndex(0);
}

bool frmPreview::isAtEdge(int direction) const {
    const QScrollBar& bar = *ui_->scrPage->verticalScrollBar();
    return bar.value() == (direction > 0 ? bar.maximum() : bar.minimum());
}

// A page is entered where the last one was left.
void frmPreview::turnAtEdge(int direction) {
    const int before = page_;
    showPage(page_ + direction);
    if (page_ == before) return;
    QScrollBar& bar = *ui_->scrPage->verticalScrollBar();
    bar.setValue(direction > 0 ? bar.minimum() : bar.maximum());
}

void frmPreview::movePage(int direction) {
    using Bar = QAbstractSlider;
    if (isAtEdge(direction)) return turnAtEdge(direction);
    ui_->scrPage->verticalScrollBar()->triggerAction(direction > 0 ? Bar::SliderPageStepAdd : Bar::SliderPageStepSub);
}

// The wheel turns the page where it can't be scrolled any further. A touchpad sends notches in small pieces.
bool frmPreview::takeWheel(const QWheelEvent& wheel) {
    const bool resizes = wheel.modifiers().testFlag(Qt::ControlModifier);
    const int delta = -wheel.angleDelta().y();
    if (delta == 0 || (!resizes && !isAtEdge(delta))) {
        wheel_ = 0;
        return false;
    }
    if ((wheel_ < 0) != (delta < 0)) wheel_ = 0;
    wheel_ += delta;
    if (std::abs(wheel_) < QWheelEvent::DefaultDeltasPerStep) return true;
    wheel_ = 0;
    if (resizes)
        zoomBy(-delta);
    else
        turnAtEdge(delta > 0 ? 1 : -1);
    return true;
}

bool frmPreview::eventFilter(QObject* watched, QEvent* event) {
    const bool onPaper = watched == ui_->scrPage || watched == ui_->scrPage->viewport();
    if (onPaper && event->type() == QEvent::Wheel) return takeWheel(*static_cast<QWheelEvent*>(event));
    if (watched == ui_->scrPage && event->type() == QEvent::Resize) applyZoom();
    if (event->type() != QEvent::KeyPress) return false;
    auto* const key = static_cast<QKeyEvent*>(event);
    // There the other keys belong to what is typed.
    if (watched == ui_->txtPage && !turnsPages(*key)) return false;
    keyPressEvent(key);
    return event->isAccepted();
}

void frmPreview::keyPressEvent(QKeyEvent* event) {
    event->accept();
    switch (event->key()) {
    case Qt::Key_PageDown:
        return movePage(1);
    case Qt::Key_PageUp:
        return movePage(-1);
    case Qt::Key_Home:
        return showPage(0);
    case Qt::Key_End:
        return showPage(document_->pageCount() - 1);
    case Qt::Key_Plus:
    case Qt::Key_Semicolon:
        return zoomBy(1);
    case Qt::Key_Minus:
        return zoomBy(-1);
    default:
        event->ignore();
    }
}

// Not while it is printed.
void frmPreview::closeEvent(QCloseEvent* event) {
    event->setAccepted(!blnShowing_);
}

void frmPreview::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(document_->DocumentName());
    printer.setCreator(productName());
    printer.setPageLayout(layoutOf(document_->paper()));
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, document_->pageCount());
    const NormalPointer pointer;
    if (dialog.exec() == QDialog::Accepted) printOn(printer);
}

PageRange frmPreview::rangeOf(const QPrinter& printer) const {
    const int last = document_->pageCount() - 1;
    if (printer.printRange() == QPrinter::CurrentPage) return {page_, page_};
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() < 1) return {0, last};
    const int first = std::clamp(printer.fromPage() - 1, 0, last);
    return {first, std::clamp(printer.toPage() - 1, first, last)};
}

void frmPreview::printOn(QPrinter& printer) {
    printer.setFullPage(true);
    guarded(client_.context, u"frmPreview", u"cmdPrint_Click", [&] {
        const Hourglass hourglass;
        const PageRange range = rangeOf(printer);
        const QString file = printer.outputFileName();
        // A printer doesn't tell when the disk under its file is full.
        if (!file.isEmpty())
            (void)writePdf(*document_, range, printer.pageLayout(), file, client_.context.progress);
        else if (!paintPages(printer, *document_, range, client_.context.progress))
            printer.abort();
    });
}

void frmPreview::savePdf() {
    guarded(client_.context, u"frmPreview", u"cmdPdf_Click", [&] {
        const auto path =
            client_.context.prompts.saveFile(QStringLiteral("PDFﾌｧｲﾙ(*.pdf)|*.pdf"), QStringLiteral("pdf"),
                                             fileName(document_->FileName()) + QStringLiteral(".pdf"));
        if (path) (void)writePdf(*document_, *path, client_.context.progress);
    });
}

void closePreview(const QWidget* parent) {
    for (frmPreview* const open : parent->findChildren<frmPreview*>(Qt::FindDirectChildrenOnly)) open->close();
}

void showPreview(std::unique_ptr<PaperDocument> document, Client& client, QWidget* parent) {
    closePreview(parent);
    auto* const preview = new frmPreview(std::move(document), client, parent);
    preview->show();
    preview->activateWindow();
}

} // namespace kurbo
