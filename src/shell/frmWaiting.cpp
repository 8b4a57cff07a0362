#include "shell/frmWaiting.h"

#include "base/product.h"
#include "screen/windows/show_now.h"
#include "ui_frmWaiting.h"

#include <QApplication>
#include <QCloseEvent>
#include <QWindow>

#include <algorithm>

namespace kurbo {
namespace {

// Without a known end the bar fills anew every two seconds.
constexpr int endlessRound = 20;
// Painting, and looking for a click, cost more than most steps: ten times a second is enough.
constexpr int betweenPictures = 90;

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

// While it lives, input reaches one window only.
class InputOf final : public QObject {
  public:
    explicit InputOf(const QWidget& window) : window_(window) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* receiver, QEvent* event) override {
        const auto* const widget = qobject_cast<QWidget*>(receiver);
        const bool own = widget ? widget->window() == &window_ : receiver == window_.windowHandle();
        if (own || !isInput(event->type())) return false;
        // A window that is told to close takes an event that nobody refused for a yes.
        if (event->type() == QEvent::Close) event->ignore();
        return true;
    }

  private:
    const QWidget& window_;
};

} // namespace

frmWaiting::frmWaiting()
    : QWidget(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      ui_(std::make_unique<Ui::frmWaiting>()) {
    ui_->setupUi(this);
    setWindowTitle(productName());
    setAttribute(Qt::WA_ShowWithoutActivating);
}

frmWaiting::~frmWaiting() = default;

bool frmWaiting::isAnyUp() {
    return std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* window) {
        return window->isVisible() && qobject_cast<const frmWaiting*>(window);
    });
}

void frmWaiting::begin(const QString& text, int maximum) {
    endless_ = maximum == 0;
    ui_->lblPrompt->setText(text.isEmpty() ? QStringLiteral("処理中です・・・") : text);
    ui_->pgbWaiting->setRange(0, endless_ ? endlessRound : maximum);
    ui_->pgbWaiting->setValue(0);
    placeInMiddle(this);
    closed_ = false;
    asks_ = false;
    show();
    paintNow(this);
    sincePaint_.start();
    sinceLook_.start();
}

void frmWaiting::step(int value) {
    if (!endless_) ui_->pgbWaiting->setValue(value);
    if (!isVisible() || sincePaint_.elapsed() < betweenPictures) return;
    if (endless_) ui_->pgbWaiting->setValue((ui_->pgbWaiting->value() + 1) % (endlessRound + 1));
    // A look at events without input would put the input by, and the display wouldn't hand it on at the next look.
    if (asks_)
        repaint();
    else
        paintNow(this);
    sincePaint_.start();
}

void frmWaiting::end() {
    hide();
}

bool frmWaiting::stopped() {
    asks_ = true;
    if (isVisible() && sinceLook_.elapsed() >= betweenPictures) {
        const InputOf own(*this);
        QCoreApplication::processEvents();
        sinceLook_.start();
    }
    return closed_;
}

void frmWaiting::mousePressEvent(QMouseEvent* /*event*/) {
    close();
}

void frmWaiting::closeEvent(QCloseEvent* event) {
    closed_ = true;
    event->accept();
}

} // namespace kurbo
