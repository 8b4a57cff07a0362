#include "settings/frmStaff.h"

#include "screen/show_now.h"
#include "settings/staff.h"
#include "ui_frmStaff.h"

namespace kurbo {

frmStaff::frmStaff(Client& client, QWidget* parent)
    : RecordListForm(client, parent, staffList()), ui_(std::make_unique<Ui::frmStaff>()) {
    ui_->setupUi(this);
    dressList(QStringLiteral("社員情報登録"), QStringLiteral("社員情報"),
              {ui_->dtsStaff, ui_->picStaff, ui_->cmdUp, ui_->cmdDown, ui_->cmdUpdate, ui_->cmdPrint});
    checkFieldsOnLeaving();
    placeInMiddle(this);
}

frmStaff::~frmStaff() {
    putAway();
}

void frmStaff::recordShown() {
    const auto typed = [](const MaskedBox* box) { return box->isBlank() ? QString() : box->maskText(); };
    const Day today = client_.context.clock.today();
    ui_->lblAge->setText(ageText(typed(ui_->mskBirthday), today));
    ui_->lblYear->setText(serviceText(typed(ui_->mskJoin), typed(ui_->mskRetire), today));
}

QStringList frmStaff::listing() const {
    return staffListing(collected(), choices(), client_.context.clock.today());
}

} // namespace kurbo
