#include "settings/frmHoliday.h"

#include "screen/show_now.h"
#include "screen/vfg_copy.h"
#include "settings/settings_steps.h"
#include "ui_frmHoliday.h"

namespace kurbo {

frmHoliday::frmHoliday(Client& client, CalendarSheet& calendar, QWidget* parent)
    : ScreenForm(client, parent), ui_(std::make_unique<Ui::frmHoliday>()), calendar_(calendar) {
    ui_->setupUi(this);
    dress(QStringLiteral("休日設定"));
    rules_.grid.setRules(&cells_);
    ui_->vfgHoliday->setGrid(rules_.grid, client_.context);
    ui_->vfgHoliday->setStretchColumn(static_cast<int>(HolidayColumn::Name));
    tellTips(*ui_->vfgHoliday);
    wireGridMenu(*ui_->vfgHoliday, client_.context, ui_->mnuGrid, ui_->mnuGCopy, ui_->mnuGPaste, ui_->mnuGClear);
    onCommand(ui_->cmdHoliday, ui_->mnuHoliday, [this] { addHolidays(); });
    onCommand(ui_->cmdWrite, ui_->mnuWrite, [this] { write(); });
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    SetupGrid(rules_, calendar_);
    ui_->vfgHoliday->Select(1, static_cast<int>(HolidayColumn::Method));
    fillScreen(this, {720, 620});
    ui_->vfgHoliday->setFocus();
}

frmHoliday::~frmHoliday() {
    putAway();
}

void frmHoliday::addHolidays() {
    const auto file = ReadHolidayFile(client_.context.paths.HolidayPath);
    if (file && isSure(client_.context.prompts, file->heading)) fillHolidays(rules_, file->lines);
}

void frmHoliday::write() {
    guarded(client_.context, objectName(), u"cmdWrite_Click", [this] {
        checkRules(rules_);
        if (!isSure(client_.context.prompts, QStringLiteral("指定された休日をカレンダーに設定します。"))) return;
        writeRules(rules_, calendar_);
        close();
    });
}

} // namespace kurbo
