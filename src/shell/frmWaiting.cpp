#include "shell/frmWaiting.h"

#include "base/product.h"
#include "screen/show_now.h"
#include "ui_frmWaiting.h"

namespace kurbo {
namespace {

// Without a known end the bar fills anew every two seconds.
constexpr int endlessRound = 20;

} // namespace

frmWaiting::frmWaiting()
    : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      ui_(std::make_unique<Ui::frmWaiting>()) {
    ui_->setupUi(this);
    setWindowTitle(productName());
    setAttribute(Qt::WA_ShowWithoutActivating);
}

frmWaiting::~frmWaiting() = default;

void frmWaiting::begin(const QString& text, int maximum) {
    endless_ = maximum == 0;
    ui_->lblPrompt->setText(text.isEmpty() ? QStringLiteral("処理中です・・・") : text);
    ui_->pgbWaiting->setRange(0, endless_ ? endlessRound : maximum);
    ui_->pgbWaiting->setValue(0);
    placeInMiddle(this);
    show();
    paintNow(this);
    sincePaint_.start();
}

// Painting costs more than most steps: ten pictures a second are enough.
void frmWaiting::step(int value) {
    constexpr int betweenPictures = 90;
    if (!endless_) ui_->pgbWaiting->setValue(value);
    if (!isVisible() || sincePaint_.elapsed() < betweenPictures) return;
    if (endless_) ui_->pgbWaiting->setValue((ui_->pgbWaiting->value() + 1) % (endlessRound + 1));
    paintNow(this);
    sincePaint_.start();
}

void frmWaiting::end() {
    hide();
}

void frmWaiting::mousePressEvent(QMouseEvent* /*event*/) {
    hide();
}

} // namespace kurbo
