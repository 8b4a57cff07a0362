#include "shell/frmParm.h"

#include "screen/fields/fields.h"
#include "screen/windows/help.h"
#include "screen/windows/hourglass.h"
#include "session/choose_database.h"
#include "ui_frmParm.h"

#include <QDir>

namespace kurbo {

frmParm::frmParm(Client& client, QWidget* parent)
    : FormDialog(QStringLiteral("データベース指定"), parent), ui_(std::make_unique<Ui::frmParm>()), client_(client) {
    ui_->setupUi(this);
    ui_->menus->setNativeMenuBar(false);
    layout()->setMenuBar(ui_->menus);
    connect(ui_->txtDB, &QLineEdit::textChanged, this,
            [this](const QString& text) { ui_->cmdOK->setEnabled(!text.trimmed().isEmpty()); });
    connect(ui_->cmdDB, &QPushButton::clicked, this, &frmParm::browse);
    connect(ui_->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmParm::cancel);
    wireHelp(*this, client_);
    SetImeOpen(ui_->txtDB, false);
    ui_->txtDB->setText(client_.DbPath);
}

frmParm::~frmParm() = default;

void frmParm::browse() {
    const auto chosen = client_.context.prompts.openFile(QStringLiteral("DBﾌｧｲﾙ(*.mdb)|*.mdb"));
    if (!chosen) return;
    ui_->txtDB->setText(QDir::toNativeSeparators(*chosen));
    ui_->txtDB->setFocus();
}

void frmParm::cancel() {
    cancelled_ = true;
    reject();
}

// Every way out leads through here: the buttons, Esc and the window's own close.
void frmParm::done(int result) {
    if (!unload()) return;
    QDialog::done(result);
    if (chosen_) Q_EMIT databaseChosen();
}

bool frmParm::unload() {
    const Hourglass hourglass;
    if (cancelled_) {
        keepDatabase(client_);
        return true;
    }
    const ChoiceEnd end = chooseDatabase(client_, ui_->txtDB->text());
    chosen_ = end == ChoiceEnd::Chosen;
    return end != ChoiceEnd::Stay;
}

} // namespace kurbo
