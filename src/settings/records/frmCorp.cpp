#include "settings/records/frmCorp.h"

#include "screen/windows/show_now.h"
#include "settings/records/corp.h"
#include "ui_frmCorp.h"

namespace kurbo {

frmCorp::frmCorp(Client& client, QWidget* parent)
    : RecordForm(client, parent, corpFields()), ui_(std::make_unique<Ui::frmCorp>()) {
    ui_->setupUi(this);
    dressRecord(QStringLiteral("会社情報登録"), QStringLiteral("会社情報"));
    checkFieldsOnLeaving();
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, [this] { UpdateCorp(); });
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { print(u"PrintCorp"); });
    placeInMiddle(this);
}

frmCorp::~frmCorp() {
    putAway();
}

void frmCorp::readAll() {
    showTexts(readCorp(client_.HomeConnection));
}

void frmCorp::UpdateCorp() {
    const RecordTexts texts = collected();
    if (update({u"CheckData", [&] { checkFields(corpFields(), texts, {}); }},
               {u"UpdateCorp", [&] { writeCorp(client_.HomeConnection, shownTexts(), texts); }}))
        guarded(client_.context, objectName(), u"ShowCorp", [this] { readAll(); });
}

} // namespace kurbo
