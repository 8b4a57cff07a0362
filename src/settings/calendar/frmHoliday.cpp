#include "settings/calendar/frmHoliday.h"

#include "screen/grid/vfg_copy.h"
#include "screen/windows/show_now.h"
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
    showYear();
    ui_->vfgHoliday->Select(1, static_cast<int>(HolidayColumn::Method));
    fillScreen(this, {720, 620});
    ui_->vfgHoliday->setFocus();
}

frmHoliday::~frmHoliday() {
    putAway();
}

void frmHoliday::addHolidays() {
    if (const auto file = chooseHolidays(client_.context, rules_.year)) fillHolidays(rules_, file->lines);
    showYear();
}

void frmHoliday::showYear() {
    const auto file = ReadHolidayFile(client_.context.paths.HolidayPath);
    const auto year = file ? yearOfHeading(file->heading) : std::nullopt;
    ui_->lblHoliday->setText(year ? QStringLiteral("祝日ファイル：%1年").arg(*year) : QString());
}

void frmHoliday::write() {
    guarded(client_.context, objectName(), u"cmdWrite_Click", [this] {
        checkRules(rules_);
        if (!client_.context.prompts.sure(QStringLiteral("指定された休日をカレンダーに設定します。"))) return;
        writeRules(rules_, calendar_);
        close();
    });
}

} // namespace kurbo
