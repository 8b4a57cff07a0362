#include "settings/people/frmAsign.h"

#include "month/loaders.h"
#include "screen/fields/fields.h"
#include "screen/windows/show_now.h"
#include "settings/listing.h"
#include "settings/work_time/time_pages.h"
#include "ui_frmAsign.h"

#include <QScopedValueRollback>

namespace kurbo {
namespace {

constexpr int workTimes = 5;

QString notListed() {
    return QStringLiteral("リストから選択して下さい｡ ");
}

} // namespace

frmAsign::frmAsign(Client& client, QWidget* parent)
    : SettingsForm(client, parent), ui_(std::make_unique<Ui::frmAsign>()) {
    ui_->setupUi(this);
    dress(QStringLiteral("社員設定"));
    setSubject(QStringLiteral("社員設定"));
    findFields();
    dressFields();
    dressChoices();
    connectCommands();
    watch(*ui_->tabStaff);
    placeInMiddle(this);
}

frmAsign::~frmAsign() {
    putAway();
}

void frmAsign::findFields() {
    boxes_ = {ui_->txtPassword, ui_->txtCloseDay, ui_->txtPaid, ui_->txtEnterDelay, ui_->txtLeaveGain};
    combos_ = {ui_->dcbWeekday, ui_->dcbHoliday, ui_->dcbAmHoliday, ui_->dcbPmHoliday, ui_->dcbAdjust, ui_->dcbAccess};
}

void frmAsign::dressFields() {
    const std::array<UpDown*, StaffSettings::fields> spins{nullptr, ui_->udcCloseDay, ui_->udcPaid, ui_->udcEnterDelay,
                                                           ui_->udcLeaveGain};
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const auto field = static_cast<StaffSettings::Field>(i);
        QLineEdit* const box = boxes_[i];
        SetImeOpen(box, false);
        checkOnLeaving(box, [field](const QString& text) { return staffFieldRefusal(field, text); });
        if (!spins[i]) continue;
        const auto step = [box, field](bool up) {
            box->setText(stepped(field, box->text(), up));
            SelectAllText(box);
        };
        spins[i]->setBuddy(box);
        connect(spins[i], &UpDown::UpClick, this, [step] { step(true); });
        connect(spins[i], &UpDown::DownClick, this, [step] { step(false); });
    }
}

void frmAsign::dressChoices() {
    for (DataCombo* const combo : combos_)
        checkOnLeaving(combo, [combo](const QString&) { return combo->isInList() ? QString() : notListed(); });
    checkOnLeaving(ui_->dcbSection,
                   [this](const QString&) { return ui_->dcbSection->isInList() ? QString() : notListed(); });
    for (int page = 0; page < workTimes; ++page)
        connect(findChild<QPushButton*>(QStringLiteral("cmdWorkTime_%1").arg(page)), &QPushButton::clicked, this,
                &frmAsign::workTimeAsked);
    checkOnLeavingPages(*ui_->tabStaff);
    connect(ui_->cmdAccess, &QPushButton::clicked, this, &frmAsign::accessAsked);
}

void frmAsign::connectCommands() {
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, [this] { updateStaff(); });
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { PrintStaff(); });
    onCommand(nullptr, ui_->mnuDelete, [this] { deleteStaff(); });
    connect(ui_->dcbSection, &QComboBox::activated, this, &frmAsign::sectionChosen);
    connect(ui_->dcbSection->lineEdit(), &QLineEdit::editingFinished, this, &frmAsign::sectionChosen);
    connect(ui_->dtsStaff, &DataList::chosen, this, &frmAsign::staffChosen);
}

int frmAsign::askedPage() const {
    const QString button = focusWidget() ? focusWidget()->objectName() : QString();
    if (button == u"cmdAccess") return adjustPage;
    return button.startsWith(QStringLiteral("cmdWorkTime_")) ? button.right(1).toInt() : 0;
}

void frmAsign::readAll() {
    readCompanyStyle(client_.HomeConnection, style_);
    const QList<CodeName> sections = displayedSections(client_.HomeConnection);
    ui_->dcbSection->setEntries(sections);
    for (std::size_t i = 0; i < combos_.size(); ++i) {
        const auto choice = static_cast<StaffSettings::Choice>(i);
        const bool used = isUsed(choice, style_);
        if (used) combos_[i]->setEntries(settingChoices(client_.HomeConnection, choice));
        combos_[i]->setEnabled(used);
        if (auto* const button = findChild<QPushButton*>(QStringLiteral("cmdWorkTime_%1").arg(i)))
            button->setEnabled(used);
    }
    fillStaff(sections.isEmpty() ? QString() : sections.first().code);
}

// Everybody where there is no section. Everything is read before anything is shown.
void frmAsign::fillStaff(const QString& section) {
    const QList<CodeName> people = settingStaff(client_.HomeConnection, section);
    const QString first = people.isEmpty() ? QString() : people.first().code;
    const StaffSettings settings = ShowStaff(client_.HomeConnection, first, style_);
    section_ = section;
    ui_->dcbSection->setBoundText(section);
    ui_->dtsStaff->setEntries(people);
    showSettings(first, settings);
}

void frmAsign::showStaff(const QString& staff) {
    showSettings(staff, ShowStaff(client_.HomeConnection, staff, style_));
}

void frmAsign::showSettings(const QString& staff, const StaffSettings& settings) {
    staff_ = staff;
    ui_->dtsStaff->setBoundText(staff);
    for (std::size_t i = 0; i < boxes_.size(); ++i) boxes_[i]->setText(settings.texts[i]);
    for (std::size_t i = 0; i < combos_.size(); ++i) combos_[i]->setBoundText(settings.codes[i]);
    ui_->tabStaff->setEnabled(!staff.isEmpty());
    ui_->mnuDelete->setEnabled(!staff.isEmpty());
}

StaffSettings frmAsign::collected() const {
    StaffSettings settings;
    for (std::size_t i = 0; i < boxes_.size(); ++i) settings.texts[i] = boxes_[i]->text();
    for (std::size_t i = 0; i < combos_.size(); ++i)
        if (combos_[i]->isInList()) settings.codes[i] = combos_[i]->boundText();
    return settings;
}

bool frmAsign::mayLeave() {
    return mayDiscard(QStringLiteral("社員設定"));
}

// The question takes the focus from the section's box, which tells of it again.
void frmAsign::sectionChosen() {
    if (blnShowing_ || !ui_->dcbSection->isInList()) return;
    const QString chosen = ui_->dcbSection->boundText();
    if (chosen == section_) return;
    const QScopedValueRollback showing(blnShowing_, true);
    if (!mayLeave() || !reload(u"ShowStaff", [this, &chosen] { fillStaff(chosen); }))
        ui_->dcbSection->setBoundText(section_);
}

void frmAsign::staffChosen() {
    const QString chosen = ui_->dtsStaff->boundText();
    if (blnShowing_ || chosen == staff_) return;
    const QScopedValueRollback showing(blnShowing_, true);
    if (!mayLeave() || !reload(u"ShowStaff", [this, &chosen] { showStaff(chosen); }))
        ui_->dtsStaff->setBoundText(staff_);
}

void frmAsign::updateStaff() {
    const StaffSettings settings = collected();
    if (update({u"CheckData", [&] { checkStaffSettings(settings, style_); }},
               {u"UpdateStaff", [&] { UpdateStaff(client_.HomeConnection, staff_, settings, style_); }}))
        reload(u"ShowStaff", [this] { showStaff(staff_); });
}

// The person is blank from then on.
void frmAsign::deleteStaff() {
    const QString question =
        lines(QStringLiteral("選択したユーザーの設定を削除します。"),
              QStringLiteral("削除したユーザーはログインできなくなります。"), QStringLiteral("よろしいですか？"));
    if (!client_.context.prompts.agrees(question)) return;
    const bool gone = guarded(client_.context, objectName(), u"DeleteStaff", false, [this] {
        DeleteStaff(client_.HomeConnection, staff_);
        return true;
    });
    if (!gone) return client_.context.prompts.exclaim(QStringLiteral("削除できませんでした。"));
    fill([this] { showSettings(staff_, {}); });
    setChanged(false);
}

void frmAsign::PrintStaff() {
    StaffSettings shown = collected();
    for (std::size_t i = 0; i < combos_.size(); ++i) shown.codes[i] = combos_[i]->currentText();
    const QStringList title(listingTitle(QStringLiteral("社員設定"), client_.context.clock.today()));
    showListing(client_.context, objectName(), u"PrintStaff",
                title +
                    staffListing({section_, ui_->dcbSection->currentText()}, {staff_, ui_->dtsStaff->text()}, shown));
}

} // namespace kurbo
