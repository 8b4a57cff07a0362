#include "screen/windows/frmAbout.h"

#include "base/product.h"
#include "screen/windows/legal.h"
#include "ui_frmAbout.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QIcon>

namespace kurbo {
namespace {

QString dateOf(const QString& path) {
    const QFileInfo file(path);
    return file.isFile() ? file.lastModified().toString(QStringLiteral("yyyy/MM/dd")) : QStringLiteral("―");
}

} // namespace

frmAbout::frmAbout(const QString& helpPath, QWidget* parent)
    : FormDialog(QStringLiteral("ヴァージョン情報"), parent), ui_(std::make_unique<Ui::frmAbout>()) {
    ui_->setupUi(this);
    ui_->imgLogo->setPixmap(QApplication::windowIcon().pixmap(96, 96));
    ui_->lblProductName->setText(productName());
    ui_->lblVersion->setText(QStringLiteral("version ") + productVersion());
    ui_->lblProgramDate->setText(dateOf(QApplication::applicationFilePath()));
    ui_->lblHelpDate->setText(dateOf(helpPath));
    ui_->lblLegal->setText(legalLine());
    connect(ui_->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

frmAbout::~frmAbout() = default;

} // namespace kurbo
