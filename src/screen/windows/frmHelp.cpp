#include "screen/windows/frmHelp.h"

#include "base/product.h"
#include "screen/windows/show_now.h"
#include "screen/windows/window_manners.h"
#include "ui_frmHelp.h"

#include <QFile>
#include <QShortcut>

#include <algorithm>

namespace kurbo {

frmHelp::frmHelp(const QString& path, QWidget* parent)
    : QMainWindow(parent), ui_(std::make_unique<Ui::frmHelp>()), path_(path) {
    constexpr QSize roomy(960, 720);
    ui_->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    // Also beside a screen that blocks all others.
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(productName() + QStringLiteral("－ヘルプ"));
    connectCommands();
    fillScreen(this, roomy);
    ui_->txtHelp->setFocus();
}

frmHelp::~frmHelp() = default;

void frmHelp::connectCommands() {
    QTextBrowser* const text = ui_->txtHelp;
    const auto onKey = [this](const QKeySequence& keys, auto body) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, body);
    };
    const auto contents = [this] { goTo({}); };
    const auto next = [this] { find({}); };
    connect(ui_->cmdBack, &QPushButton::clicked, text, &QTextBrowser::backward);
    connect(ui_->cmdForward, &QPushButton::clicked, text, &QTextBrowser::forward);
    connect(text, &QTextBrowser::backwardAvailable, ui_->cmdBack, &QWidget::setEnabled);
    connect(text, &QTextBrowser::forwardAvailable, ui_->cmdForward, &QWidget::setEnabled);
    connect(ui_->cmdContents, &QPushButton::clicked, this, contents);
    connect(ui_->cmdFind, &QPushButton::clicked, this, next);
    connect(ui_->txtFind, &QLineEdit::returnPressed, this, next);
    onKey(QKeySequence::FindNext, next);
    onKey(QKeySequence::FindPrevious, [this] { find(QTextDocument::FindBackward); });
    onKey(QKeySequence::Find, [this] {
        ui_->txtFind->setFocus();
        ui_->txtFind->selectAll();
    });
    onKey(QKeySequence(Qt::ALT | Qt::Key_Left), [text] { text->backward(); });
    onKey(QKeySequence(Qt::ALT | Qt::Key_Right), [text] { text->forward(); });
    onKey(QKeySequence(Qt::ALT | Qt::Key_Home), contents);
    wireEscape(*this);
}

void frmHelp::showTopic(const QStringList& anchors) {
    QFile file(path_);
    const QString text = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    const auto known = [&text](const QString& anchor) {
        return text.contains(QStringLiteral("name=\"%1\"").arg(anchor));
    };
    const auto found = std::ranges::find_if(anchors, known);
    goTo(found == anchors.end() ? QString() : *found);
}

// The top, without an anchor.
void frmHelp::goTo(const QString& anchor) {
    QUrl url = QUrl::fromLocalFile(path_);
    if (!anchor.isEmpty()) url.setFragment(anchor);
    ui_->txtHelp->setSource(url, QTextDocument::HtmlResource);
}

// From where the last one was found, and once around.
void frmHelp::find(QTextDocument::FindFlags direction) {
    const QString words = ui_->txtFind->text();
    ui_->status->clearMessage();
    if (words.isEmpty() || ui_->txtHelp->find(words, direction)) return;
    const QTextCursor before = ui_->txtHelp->textCursor();
    ui_->txtHelp->moveCursor(direction ? QTextCursor::End : QTextCursor::Start);
    if (ui_->txtHelp->find(words, direction)) return;
    ui_->txtHelp->setTextCursor(before);
    ui_->status->showMessage(QStringLiteral("「%1」は見つかりません。").arg(words));
}

} // namespace kurbo
