#include "settings/work_style/frmWorkStyle.h"

#include "base/field_tests.h"
#include "screen/fields/fields.h"
#include "screen/fields/masked_box.h"
#include "screen/windows/show_now.h"
#include "settings/listing.h"
#include "ui_frmWorkStyle.h"

#include <algorithm>

namespace kurbo {
namespace {

int chosen(const std::vector<QRadioButton*>& options) {
    const auto found = std::ranges::find_if(options, &QRadioButton::isChecked);
    return found == options.end() ? 0 : static_cast<int>(found - options.begin());
}

void choose(const std::vector<QRadioButton*>& options, int index) {
    if (index >= 0 && index < static_cast<int>(options.size()))
        options[static_cast<std::size_t>(index)]->setChecked(true);
}

QString timeRefusal(const QString& text) {
    return isTimeText(text) ? QString() : QStringLiteral("不正な入力です。時間を入力して下さい。");
}

void enableAll(const std::vector<QRadioButton*>& options, bool enabled) {
    for (QRadioButton* const option : options) option->setEnabled(enabled);
}

} // namespace

frmWorkStyle::frmWorkStyle(Client& client, QWidget* parent)
    : SettingsForm(client, parent), ui_(std::make_unique<Ui::frmWorkStyle>()) {
    ui_->setupUi(this);
    dress(QStringLiteral("勤務形態設定"));
    setSubject(QStringLiteral("勤務形態設定"));
    dressFields();
    connectCommands();
    watch(*ui_->tabStyle);
    placeInMiddle(this);
}

frmWorkStyle::~frmWorkStyle() {
    putAway();
}

frmWorkStyle::Options frmWorkStyle::options(const QString& name, int count) const {
    Options found;
    for (int index = 0; index < count; ++index)
        found.push_back(findChild<QRadioButton*>(QStringLiteral("%1_%2").arg(name).arg(index)));
    return found;
}

void frmWorkStyle::dressFields() {
    constexpr int works = 3;
    am_ = {ui_->chkAmHoliday, options(QStringLiteral("optAmWork"), works), ui_->chkAmFlex, ui_->lblAmTime,
           ui_->mskAmTime};
    pm_ = {ui_->chkPmHoliday, options(QStringLiteral("optPmWork"), works), ui_->chkPmFlex, ui_->lblPmTime,
           ui_->mskPmTime};
    optMethod_ = options(QStringLiteral("optMethod"), 2);
    optEnter_ = options(QStringLiteral("optEnter"), 2);
    optLeave_ = options(QStringLiteral("optLeave"), 2);
    optHour_ = options(QStringLiteral("optHour"), 2);
    optRound_ = options(QStringLiteral("optRound"), 2);
    for (std::size_t item = 0; item < chkDisplay_.size(); ++item)
        chkDisplay_[item] = findChild<QCheckBox*>(QStringLiteral("chkDisplay_%1").arg(item));
    for (MaskedBox* const box : {ui_->mskTime, ui_->mskAmTime, ui_->mskPmTime}) checkOnLeaving(box, &timeRefusal);
    SetImeOpen(ui_->txtUnit, false);
    checkOnLeaving(ui_->txtUnit, &roundUnitRefusal);
    checkOnLeavingPages(*ui_->tabStyle);
}

void frmWorkStyle::connectCommands() {
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, [this] { UpdateWorkStyle(); });
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { PrintWorkStyle(); });
}

void frmWorkStyle::readAll() {
    LoadWorkStyle();
}

void frmWorkStyle::LoadWorkStyle() {
    const WorkStyle style = readWorkStyle(client_.HomeConnection);
    ui_->chkFlex->setChecked(style.flex);
    ui_->mskTime->setText(style.standard);
    showHalfDay(am_, style.am);
    showHalfDay(pm_, style.pm);
    choose(optMethod_, style.byMonth ? 1 : 0);
    choose(optEnter_, style.roundEnter);
    choose(optLeave_, style.roundLeave);
    choose(optHour_, style.countUnit);
    choose(optRound_, style.roundHour);
    ui_->txtUnit->setText(style.roundUnit);
    for (std::size_t item = 0; item < chkDisplay_.size(); ++item) chkDisplay_[item]->setChecked(style.display[item]);
    enableFields();
}

void frmWorkStyle::showHalfDay(const HalfDay& half, const WorkStyle::HalfDay& values) {
    half.exists->setChecked(values.exists);
    choose(half.work, values.work);
    half.flex->setChecked(values.flex);
    half.standard->setText(values.standard);
}

WorkStyle::HalfDay frmWorkStyle::collected(const HalfDay& half) {
    return {half.exists->isChecked(), chosen(half.work), half.flex->isChecked(), half.standard->maskText()};
}

WorkStyle frmWorkStyle::collected() const {
    WorkStyle style;
    style.flex = ui_->chkFlex->isChecked();
    style.standard = ui_->mskTime->maskText();
    style.am = collected(am_);
    style.pm = collected(pm_);
    style.byMonth = chosen(optMethod_) == 1;
    style.roundEnter = chosen(optEnter_);
    style.roundLeave = chosen(optLeave_);
    style.roundHour = chosen(optRound_);
    style.countUnit = chosen(optHour_);
    style.roundUnit = ui_->txtUnit->text();
    for (std::size_t item = 0; item < chkDisplay_.size(); ++item) style.display[item] = chkDisplay_[item]->isChecked();
    return style;
}

void frmWorkStyle::fieldChanged() {
    enableFields();
}

void frmWorkStyle::enable(const HalfDay& half) {
    const bool exists = half.exists->isChecked();
    half.flex->setEnabled(exists);
    enableAll(half.work, exists);
    half.label->setEnabled(exists && half.flex->isChecked());
    half.standard->setEnabled(exists && half.flex->isChecked());
}

// Rounding by the month always shows hours and minutes.
void frmWorkStyle::enableFields() {
    const bool flex = ui_->chkFlex->isChecked();
    const bool byMonth = chosen(optMethod_) == 1;
    ui_->lblTime->setEnabled(flex);
    ui_->mskTime->setEnabled(flex);
    enable(am_);
    enable(pm_);
    enableAll(optEnter_, !byMonth);
    enableAll(optLeave_, !byMonth);
    enableAll(optRound_, byMonth);
    ui_->fraHour->setEnabled(!byMonth);
    if (byMonth) fill([this] { choose(optHour_, 1); });
    chkDisplay_[WorkStyle::diff]->setEnabled(flex);
    chkDisplay_[WorkStyle::legalOver]->setEnabled(!flex);
}

void frmWorkStyle::UpdateWorkStyle() {
    const WorkStyle style = collected();
    update({u"CheckData", [&] { checkWorkStyle(style); }},
           {u"UpdateWorkStyle", [&] { writeWorkStyle(client_.HomeConnection, style); }});
}

void frmWorkStyle::PrintWorkStyle() {
    showListing(client_.context, objectName(), u"PrintWorkStyle",
                QStringList(listingTitle(QStringLiteral("勤務形態設定"), client_.context.clock.today())) +
                    workStyleListing(collected()));
}

} // namespace kurbo
