#include "settings/work_time/frmWorkTime.h"

#include "base/product.h"
#include "month/loaders.h"
#include "paper/grid_print.h"
#include "screen/fields/data_list.h"
#include "screen/fields/fields.h"
#include "screen/grid/grid.h"
#include "screen/grid/vfg_copy.h"
#include "screen/windows/show_now.h"
#include "settings/work_time/day_chart.h"
#include "settings/work_time/time_checks.h"
#include "ui_frmWorkTime.h"

#include <QSignalBlocker>

namespace kurbo {
namespace {

constexpr int legendLabels = 8;

QString subjectOf(const TimePage& page) {
    return QString::fromUtf16(page.subject) + QStringLiteral("設定");
}

} // namespace

frmWorkTime::frmWorkTime(Client& client, QWidget* parent)
    : SettingsForm(client, parent), ui_(std::make_unique<Ui::frmWorkTime>()) {
    ui_->setupUi(this);
    dress(QStringLiteral("勤務時間設定"));
    for (const TimePage& page : timePages()) {
        pages_.push_back(std::make_unique<Page>(page, style_));
        dressPage(*pages_.back());
        connectPage(*pages_.back());
    }
    connect(ui_->tabTime, &QTabWidget::currentChanged, this, &frmWorkTime::pageChosen);
    fillScreen(this, {880, 640});
}

frmWorkTime::~frmWorkTime() {
    putAway();
}

template <typename Control>
Control* frmWorkTime::find(const QString& prefix, const Page& page) const {
    return findChild<Control*>(prefix + QString::fromUtf16(page.sheet.page.name));
}

void frmWorkTime::dressPage(Page& page) {
    page.mnuPage = find<QMenu>(QStringLiteral("mnu"), page);
    page.dtsList = find<DataList>(QStringLiteral("dts"), page);
    page.txtName = find<QLineEdit>(QStringLiteral("txt"), page);
    page.vfgTimes = find<Grid>(QStringLiteral("vfg"), page);
    page.picDay = find<DayChart>(QStringLiteral("pic"), page);
    page.cmdUpdate = find<QPushButton>(QStringLiteral("cmdUpdate"), page);
    page.mnuUpdate = find<QAction>(QStringLiteral("mnuUpdate"), page);
    SetImeOpen(page.txtName, true);
    page.vfgTimes->setGrid(page.sheet.grid, client_.context);
    tellTips(*page.vfgTimes);
    wireGridMenu(*page.vfgTimes, client_.context, ui_->mnuGrid, ui_->mnuGCopy, ui_->mnuGPaste, ui_->mnuGClear);
    for (int entry = 0; page.sheet.page.isBands() && entry < legendLabels; ++entry)
        page.lblLegend.push_back(
            findChild<QLabel*>(QStringLiteral("%1_%2").arg(QString::fromUtf16(page.sheet.page.legend)).arg(entry)));
}

void frmWorkTime::connectPage(Page& page) {
    page.sheet.onEdit = [this, &page] { edited(page); };
    connect(page.txtName, &QLineEdit::textChanged, this, [this, &page] {
        if (blnShowing_) return;
        page.sheet.changed = true;
        edited(page);
    });
    checkOnLeaving(page.txtName, [&page](const QString& text) { return timeNameRefusal(page.sheet.page, text); });
    connect(page.dtsList, &DataList::chosen, this, [this, &page] { chosen(page); });
    onCommand(page.cmdUpdate, page.mnuUpdate, [this, &page] { updateRecord(page); });
    onCommand(find<QPushButton>(QStringLiteral("cmdPrint"), page), find<QAction>(QStringLiteral("mnuPrint"), page),
              [this, &page] { printRecord(page); });
    onCommand(nullptr, find<QAction>(QStringLiteral("mnuDelete"), page), [this, &page] { removeRecord(page); });
}

void frmWorkTime::readAll() {
    style_ = clsWorkTime();
    if (!GetWorkStyle(client_.context, connection(), style_)) return loadFailed();
    for (const auto& page : pages_)
        if (isAlive()) loadPage(*page);
    if (!exists(shownPage().sheet.page, style_)) shown_ = 0;
    ui_->tabTime->setCurrentIndex(shown_);
    shownPage().dtsList->setFocus();
    showTip(*shownPage().vfgTimes);
}

// The other pages keep their numbers where one is missing.
void frmWorkTime::loadPage(Page& page) {
    const TimePage& own = page.sheet.page;
    const bool there = exists(own, style_);
    page.mnuPage->menuAction()->setVisible(there);
    ui_->tabTime->setTabVisible(static_cast<int>(&own - timePages().data()), there);
    if (!there) return;
    page.dtsList->setEntries(timeNames(connection(), own));
    page.dtsList->setBoundText(QStringLiteral("0"));
    if (page.dtsList->text().isEmpty())
        throw Complaint(QString::fromUtf16(own.reserved) + QStringLiteral("が削除されています。"));
    SetLegend(page);
    if (!showRecord(page, 0)) loadFailed();
}

bool frmWorkTime::showNames(Page& page) {
    return guarded(client_.context, objectName(), page.sheet.page.procedures.show, false, [&] {
        page.dtsList->setEntries(timeNames(connection(), page.sheet.page));
        return true;
    });
}

// After a failure the list shows what the page still does.
bool frmWorkTime::showRecord(Page& page, std::int64_t code) {
    const bool shown = guarded(client_.context, objectName(), page.sheet.page.procedures.show, false, [&] {
        showTimes(connection(), page.sheet, code);
        return true;
    });
    page.dtsList->setBoundText(QString::number(page.sheet.code));
    if (shown) page.txtName->setText(page.sheet.name);
    DrawDayChart(page);
    return shown;
}

void frmWorkTime::showAnew(Page& page, std::int64_t code) {
    if (showNames(page)) showRecord(page, code);
}

void frmWorkTime::SetLegend(const Page& page) {
    const QList<LegendEntry> legend = legendOf(page.sheet);
    for (qsizetype entry = 0; entry < std::ssize(page.lblLegend); ++entry) {
        QLabel& label = *page.lblLegend[static_cast<std::size_t>(entry)];
        label.setVisible(entry < legend.size());
        if (entry >= legend.size()) continue;
        const GridColour& colour = legend[entry].colour;
        QPalette colours = label.palette();
        colours.setColor(QPalette::Window, QColor(colour.red, colour.green, colour.blue));
        colours.setColor(QPalette::WindowText, Qt::black);
        label.setPalette(colours);
        label.setText(legend[entry].caption);
    }
}

void frmWorkTime::DrawDayChart(const Page& page) {
    if (page.picDay) page.picDay->setBoxes(dayChart(page.sheet));
}

void frmWorkTime::edited(Page& page) {
    DrawDayChart(page);
    setChanged(true);
}

void frmWorkTime::chosen(Page& page) {
    const QString code = page.dtsList->boundText();
    const QString shown = QString::number(page.sheet.code);
    if (blnShowing_ || code == shown) return;
    const QString subject = QString::fromUtf16(page.sheet.page.subject);
    const bool asks = page.sheet.page.asksOnLeaving && page.sheet.changed;
    if (!code.isEmpty() && finishEdits() && kurbo::mayDiscard(client_.context.prompts, asks, subject))
        run([&] { showRecord(page, code.toLongLong()); });
    else
        page.dtsList->setBoundText(shown);
}

// A page whose open cell is refused stays in view.
void frmWorkTime::pageChosen(int index) {
    if (blnShowing_) return;
    if (finishEdits()) {
        shown_ = index;
        showTip(*shownPage().vfgTimes);
        return setChanged(isChanged());
    }
    const QSignalBlocker quiet(ui_->tabTime);
    ui_->tabTime->setCurrentIndex(shown_);
}

void frmWorkTime::openUpdate() {
    shownPage().cmdUpdate->setEnabled(true);
    shownPage().mnuUpdate->setEnabled(true);
}

void frmWorkTime::showState() {
    ui_->mnuGrid->setEnabled(isAlive());
    for (const auto& page : pages_) {
        const bool current = page.get() == &shownPage();
        page->mnuPage->setEnabled(isAlive() && current);
        page->cmdUpdate->setEnabled(page->sheet.changed);
        page->mnuUpdate->setEnabled(page->sheet.changed);
    }
}

void frmWorkTime::updateRecord(Page& page) {
    TimeSheet& sheet = page.sheet;
    const QString name = page.txtName->text().trimmed();
    const SettingsStep check{sheet.page.procedures.check,
                             [&] { checkTimes(connection(), sheet, name, pages_[weekdayPage]->sheet); }};
    const SettingsStep write{sheet.page.procedures.update, [&] { updateTimes(connection(), sheet, name); }};
    if (store(check, write)) showAnew(page, sheet.code);
    shown_ = ui_->tabTime->currentIndex();
}

void frmWorkTime::removeRecord(Page& page) {
    const TimePage& own = page.sheet.page;
    const std::int64_t code = page.sheet.code;
    const QString reserved = code == 0 ? QStringLiteral("「%1」").arg(QString::fromUtf16(own.reserved)) : QString();
    const Removal removal{.reserved = reserved,
                          .subject = subjectOf(own),
                          .failure = QString::fromUtf16(own.removalFailure),
                          .isUsed = [&] { return isUsed(connection(), own, code); },
                          .remove = {own.procedures.remove, [&] { removeTimes(connection(), own, code); }}};
    if (removeSetting(client_.context, objectName(), removal)) showAnew(page, 0);
}

void frmWorkTime::printRecord(const Page& page) {
    const QString document =
        QStringLiteral("%1－%2(%3)").arg(productName(), subjectOf(page.sheet.page), page.txtName->text());
    PrintGrid(page.sheet.grid, document, client_, this);
}

// Each page with changes is brought to view and asked for.
bool frmWorkTime::mayClose() {
    for (std::size_t index = 0; index < pages_.size(); ++index) {
        const TimeSheet& sheet = pages_[index]->sheet;
        if (!sheet.changed) continue;
        ui_->tabTime->setCurrentIndex(static_cast<int>(index));
        if (!kurbo::mayDiscard(client_.context.prompts, true, subjectOf(sheet.page))) return false;
    }
    return true;
}

} // namespace kurbo
