#include "settings/people/frmAccess.h"

#include "base/product.h"
#include "month/loaders.h"
#include "paper/grid_print.h"
#include "screen/fields/fields.h"
#include "screen/grid/vfg_copy.h"
#include "screen/windows/show_now.h"
#include "ui_frmAccess.h"

#include <algorithm>

namespace kurbo {
namespace {

const QString noCode = QStringLiteral("0");

} // namespace

frmAccess::frmAccess(Client& client, QWidget* parent)
    : SettingsForm(client, parent), ui_(std::make_unique<Ui::frmAccess>()) {
    ui_->setupUi(this);
    dress(QStringLiteral("アクセス権設定"));
    setSubject(QStringLiteral("アクセス権設定"));
    sheet_.grid.setRules(&rules_);
    sheet_.onEdit = [this] { setChanged(true); };
    ui_->vfgAccess->setGrid(sheet_.grid, client_.context);
    ui_->vfgAccess->setStretchColumn(static_cast<int>(AccessColumn::Section));
    wireGridMenu(*ui_->vfgAccess, client_.context, ui_->mnuGrid, ui_->mnuGCopy, ui_->mnuGPaste, ui_->mnuGClear);
    tellTips(*ui_->vfgAccess);
    SetImeOpen(ui_->txtAccess, true);
    checkOnLeaving(ui_->txtAccess, &accessNameRefusal);
    connectCommands();
    watch(*ui_->picAccess);
    fillScreen(this, {1300, 700});
}

frmAccess::~frmAccess() {
    putAway();
}

void frmAccess::connectCommands() {
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, [this] { updateRight(); });
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { printRight(); });
    onCommand(nullptr, ui_->mnuDelete, [this] { deleteRight(); });
    connect(ui_->dtsAccess, &DataList::chosen, this, &frmAccess::rightChosen);
}

void frmAccess::readAll() {
    readCompanyStyle(client_.HomeConnection, style_);
    showRight(noCode);
    if (ui_->dtsAccess->text().isEmpty())
        throw Complaint(QStringLiteral("「%1」が削除されています。").arg(newAccessName()));
}

int frmAccess::code() const {
    return shown_.toInt();
}

// Everything is read before anything is shown. A right that another client has deleted gives way to the new one.
void frmAccess::showRight(const QString& code) {
    const QList<CodeName> names = accessNames(client_.HomeConnection);
    const bool there = std::ranges::find(names, code, &CodeName::code) != names.end();
    ShowAccess(client_.HomeConnection, there ? code.toInt() : 0, style_, sheet_);
    shown_ = there ? code : noCode;
    ui_->dtsAccess->setEntries(names);
    ui_->dtsAccess->setBoundText(shown_);
    ui_->txtAccess->setText(ui_->dtsAccess->text());
    if (!there && code != noCode) client_.context.prompts.exclaim(deletedAccessText());
}

void frmAccess::rightChosen() {
    const QString chosen = ui_->dtsAccess->boundText();
    if (blnShowing_ || chosen == shown_) return;
    const bool shown = finishEdits() && mayDiscard(QStringLiteral("アクセス権")) &&
                       reload(u"ShowAccess", [this, &chosen] { showRight(chosen); });
    if (!shown) ui_->dtsAccess->setBoundText(shown_);
}

void frmAccess::updateRight() {
    const QString name = ui_->txtAccess->text().trimmed();
    Connection& home = client_.HomeConnection;
    int written = code();
    if (update({u"CheckData", [&] { checkAccess(home, code(), name, sheet_); }},
               {u"UpdateAccess", [&] { written = UpdateAccess(home, code(), name, sheet_); }}))
        reload(u"ShowAccess", [this, written] { showRight(QString::number(written)); });
}

void frmAccess::deleteRight() {
    Connection& home = client_.HomeConnection;
    const QString reserved = code() == 0 ? QStringLiteral("「%1」").arg(newAccessName()) : QString();
    const Removal removal{
        .reserved = reserved,
        .subject = QStringLiteral("アクセス権"),
        .failure = QStringLiteral("アクセス権の削除に失敗しました。"),
        .isUsed = [&] { return IsUsedAccess(home, code()); },
        .remove = {u"DeleteAccess", [&] { DeleteAccess(home, code()); }},
    };
    if (removeSetting(client_.context, objectName(), removal)) reload(u"ShowAccess", [this] { showRight(noCode); });
}

void frmAccess::printRight() {
    PrintGrid(sheet_.grid, QStringLiteral("%1－アクセス権設定(%2)").arg(productName(), ui_->txtAccess->text()), client_,
              this);
}

} // namespace kurbo
