#include "shell/frmSplash.h"

#include "base/product.h"
#include "screen/windows/legal.h"
#include "screen/windows/show_now.h"
#include "shell/application.h"
#include "ui_frmSplash.h"

namespace kurbo {

frmSplash::frmSplash(const QString& warning)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint), ui_(std::make_unique<Ui::frmSplash>()) {
    ui_->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setWindowTitle(productName());
    ui_->imgLogo->setPixmap(logo(128));
    ui_->lblProductName->setText(productName());
    ui_->lblVersion->setText(QStringLiteral("version ") + productVersion());
    ui_->lblLegal->setText(legalLine());
    ui_->lblWarning->setText(warning);
}

frmSplash::~frmSplash() = default;

void frmSplash::showAtOnce() {
    placeInMiddle(this);
    show();
    paintNow(this);
}

void frmSplash::mousePressEvent(QMouseEvent* /*event*/) {
    close();
}

void frmSplash::keyPressEvent(QKeyEvent* /*event*/) {
    close();
}

} // namespace kurbo
