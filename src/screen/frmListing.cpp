#include "screen/frmListing.h"

#include "base/files.h"
#include "base/product.h"
#include "screen/show_now.h"

#include <QFile>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QShortcut>

namespace kurbo {

frmListing::frmListing(const QString& path, QWidget* parent) : QMainWindow(parent) {
    constexpr QSize roomy(760, 640);
    setObjectName(QStringLiteral("frmListing"));
    setAttribute(Qt::WA_DeleteOnClose);
    // Also beside a screen that blocks all others.
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(productName() + u'－' + FileNameOf(path));
    auto* const text = new QPlainTextEdit(this);
    text->setObjectName(QStringLiteral("txtListing"));
    text->setReadOnly(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) text->setPlainText(QString::fromUtf8(file.readAll()));
    setCentralWidget(text);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    fillScreen(this, roomy);
}

} // namespace kurbo
