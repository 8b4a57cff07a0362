#include "maintenance/frmMaintainance.h"

#include "maintenance/data_move.h"
#include "screen/fields/fields.h"
#include "screen/fields/leave_check.h"
#include "screen/windows/show_now.h"
#include "ui_frmMaintainance.h"

namespace kurbo {

frmMaintainance::frmMaintainance(Client& client, QWidget* parent)
    : ScreenForm(client, parent), ui_(std::make_unique<Ui::frmMaintainance>()) {
    ui_->setupUi(this);
    dress(QStringLiteral("データ移動"));
    dressFields();
    connect(ui_->optMethod_1, &QRadioButton::toggled, this, &frmMaintainance::SetExecEnabled);
    connect(ui_->txtDestDB, &QLineEdit::textChanged, this, &frmMaintainance::SetExecEnabled);
    connect(ui_->cmdDB, &QPushButton::clicked, this, &frmMaintainance::browse);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    onCommand(ui_->cmdExec, nullptr, [this] { move(); });
    placeInMiddle(this);
}

frmMaintainance::~frmMaintainance() {
    putAway();
}

void frmMaintainance::dressFields() {
    const QString noDay = QStringLiteral("不正な入力です。日付はyyyy/mm/ddの形式で入力します。");
    const QString noMonth = QStringLiteral("不正な入力です。日付はyyyy/mmの形式で入力します。");
    Prompts& prompts = client_.context.prompts;
    const auto dressBox = [&](MaskedBox* box, UpDown* spin, const QString& refusal, const auto& later) {
        box->setRefusal(refusal, prompts);
        connect(box, &QLineEdit::textChanged, this, &frmMaintainance::SetExecEnabled);
        spin->setBuddy(box);
        spin->setRepeats(true);
        const auto moveBy = [box, later](int by) {
            if (const auto day = box->day()) box->setDay(later(*day, by));
        };
        connect(spin, &UpDown::UpClick, this, [moveBy] { moveBy(1); });
        connect(spin, &UpDown::DownClick, this, [moveBy] { moveBy(-1); });
    };
    const auto daysLater = [](Day day, int by) { return day + std::chrono::days(by); };
    dressBox(ui_->mskStartDay, ui_->udcStartDay, noDay, daysLater);
    dressBox(ui_->mskEndDay, ui_->udcEndDay, noDay, daysLater);
    dressBox(ui_->mskStartMonth, ui_->udcStartMonth, noMonth, addMonths);
    dressBox(ui_->mskEndMonth, ui_->udcEndMonth, noMonth, addMonths);
    SetImeOpen(ui_->txtDestDB, false);
    new LeaveCheck(
        ui_->txtDestDB,
        [this] { return ui_->txtDestDB->text().trimmed().isEmpty() || hasDestFolder(ui_->txtDestDB->text()); },
        [&prompts] { prompts.exclaim(noDestFolderText()); });
}

// Days are moved out of the home file.
bool frmMaintainance::hasConnection() {
    return client_.hasHome(objectName());
}

void frmMaintainance::load() {
    run([this] {
        ui_->lblSourceDB->setText(client_.DbPath);
        ui_->lblSourceDB->setToolTip(client_.DbPath);
        if (const auto first = firstMoveOrder(client_.context, client_.HomeConnection)) showOrder(*first);
    });
    ui_->mskStartDay->setFocus();
}

void frmMaintainance::showOrder(const MoveOrder& order) {
    for (const auto& [box, day] : {std::pair{ui_->mskStartDay, order.startDay},
                                   {ui_->mskEndDay, order.endDay},
                                   {ui_->mskStartMonth, order.startMonth},
                                   {ui_->mskEndMonth, order.endMonth}})
        if (day) box->setDay(*day);
}

MoveOrder frmMaintainance::order() const {
    return {ui_->mskStartDay->day(),   ui_->mskEndDay->day(),   ui_->optMethod_1->isChecked(),
            ui_->mskStartMonth->day(), ui_->mskEndMonth->day(), ui_->txtDestDB->text()};
}

void frmMaintainance::SetExecEnabled() {
    for (QWidget* const control : {static_cast<QWidget*>(ui_->mskStartMonth), static_cast<QWidget*>(ui_->udcStartMonth),
                                   static_cast<QWidget*>(ui_->mskEndMonth), static_cast<QWidget*>(ui_->udcEndMonth)})
        control->setEnabled(ui_->optMethod_1->isChecked());
    ui_->cmdExec->setEnabled(isFilledIn(order()));
}

void frmMaintainance::browse() {
    const auto chosen = client_.context.prompts.saveFile(QStringLiteral("DBﾌｧｲﾙ(*.mdb)|*.mdb"), QStringLiteral("mdb"));
    if (!chosen) return;
    ui_->txtDestDB->setText(*chosen);
    ui_->txtDestDB->setFocus();
}

void frmMaintainance::move() {
    if (moveData(client_.context, client_.HomeConnection, client_.DbPath, order())) close();
}

} // namespace kurbo
