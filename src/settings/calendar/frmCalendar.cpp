#include "settings/calendar/frmCalendar.h"

#include "base/product.h"
#include "paper/grid_print.h"
#include "screen/fields/fields.h"
#include "screen/grid/vfg_copy.h"
#include "screen/windows/show_now.h"
#include "settings/calendar/calendar_store.h"
#include "settings/calendar/frmHoliday.h"
#include "ui_frmCalendar.h"

namespace kurbo {

frmCalendar::frmCalendar(Client& client, QWidget* parent)
    : SettingsForm(client, parent), ui_(std::make_unique<Ui::frmCalendar>()), calendar_(client) {
    ui_->setupUi(this);
    dress(QStringLiteral("カレンダー設定"));
    setSubject(QStringLiteral("カレンダー"));
    dressFields();
    connectCommands();
    calendar_.sheet.onEdit = [this] { setChanged(true); };
    fillScreen(this, {760, 700});
}

frmCalendar::~frmCalendar() {
    putAway();
}

void frmCalendar::dressFields() {
    ui_->vfgCalendar->setGrid(calendar_.sheet.grid, client_.context);
    ui_->vfgCalendar->setStretchColumn(static_cast<int>(CalendarColumn::Name));
    tellTips(*ui_->vfgCalendar);
    ui_->udcYear->setBuddy(ui_->txtYear);
    SetImeOpen(ui_->txtYear, false);
    wireGridMenu(*ui_->vfgCalendar, client_.context, ui_->mnuGrid, ui_->mnuGCopy, ui_->mnuGPaste, ui_->mnuGClear);
}

void frmCalendar::connectCommands() {
    onCommand(ui_->cmdUpdate, ui_->mnuUpdate, [this] { updateCalendar(); });
    onCommand(ui_->cmdPrint, ui_->mnuPrint, [this] { print(); });
    connect(ui_->udcYear, &UpDown::UpClick, this, [this] { run([this] { moveYear(1); }); });
    connect(ui_->udcYear, &UpDown::DownClick, this, [this] { run([this] { moveYear(-1); }); });
    connect(ui_->cmdHoliday, &QPushButton::clicked, this, &frmCalendar::openHoliday);
    connect(ui_->mnuHoliday, &QAction::triggered, this, &frmCalendar::openHoliday);
}

void frmCalendar::readAll() {
    calendar_.load();
    ui_->vfgCalendar->Select(1, static_cast<int>(CalendarColumn::Name));
    ui_->vfgCalendar->setFocus();
}

// Without a year that could be read there is nothing to print or to set.
void frmCalendar::showState() {
    SettingsForm::showState();
    ui_->txtYear->setText(isAlive() ? QString::number(calendar_.sheet.year) : QString());
    for (QAction* const action : {ui_->mnuPrint, ui_->mnuHoliday}) action->setEnabled(isAlive());
}

void frmCalendar::moveYear(int years) {
    if (calendar_.moveYear(years, isChanged())) setChanged(false);
}

void frmCalendar::updateCalendar() {
    const CalendarSheet& sheet = calendar_.sheet;
    const bool done =
        update({u"CheckData", [&] { checkCalendar(sheet); }},
               {u"UpdateCalendar", [&] { UpdateCalendar(client_.context.progress, client_.HomeConnection, sheet); }});
    if (done) calendar_.showAgain();
}

void frmCalendar::print() {
    PrintGrid(calendar_.sheet.grid, productName() + QStringLiteral("－カレンダー設定(%1年)").arg(calendar_.sheet.year),
              client_, this);
}

// Works on the cells of this window, which waits until it is closed.
void frmCalendar::openHoliday() {
    if (blnShowing_ || !finishEdits()) return;
    auto* const form = new frmHoliday(client_, calendar_.sheet, this);
    form->setWindowModality(Qt::WindowModal);
    form->show();
    form->activateWindow();
}

} // namespace kurbo
