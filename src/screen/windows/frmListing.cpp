#include "screen/windows/frmListing.h"

#include "base/product.h"
#include "base/system/files.h"
#include "screen/windows/show_now.h"
#include "screen/windows/window_manners.h"

#include <QFile>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>

namespace kurbo {

frmListing::frmListing(const QString& path, QWidget* parent)
    : QMainWindow(parent), txtListing_(new QPlainTextEdit(this)) {
    constexpr QSize roomy(760, 640);
    setObjectName(QStringLiteral("frmListing"));
    setAttribute(Qt::WA_DeleteOnClose);
    // Also beside a screen that blocks all others.
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(productName() + u'－' + FileNameOf(path));
    dress();
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) txtListing_->setPlainText(QString::fromUtf8(file.readAll()));
    fillScreen(this, roomy);
}

// The lines are set out by blanks: a full-width character is as wide as two of the others.
void frmListing::dress() {
    constexpr int points = 11;
    QFont font(QStringList{QStringLiteral("Noto Sans Mono CJK JP"), QStringLiteral("monospace")});
    font.setPointSize(points);
    txtListing_->setObjectName(QStringLiteral("txtListing"));
    txtListing_->setReadOnly(true);
    txtListing_->setFont(font);
    setCentralWidget(txtListing_);
    menuBar()->setNativeMenuBar(false);
    QMenu* const file = menuBar()->addMenu(QStringLiteral("ﾌｧｲﾙ(&F)"));
    file->addAction(QStringLiteral("印刷(&P)"), QKeySequence::Print, this, &frmListing::print);
    file->addAction(QStringLiteral("閉じる(&X)"), this, &QWidget::close);
    wireEscape(*this);
}

void frmListing::print() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted) txtListing_->print(&printer);
}

} // namespace kurbo
