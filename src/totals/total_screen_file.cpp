// Card files and CSV files on the screen of the totals.

#include "screen/files/card_file.h"
#include "screen/files/foreign_file.h"
#include "store/section_switch.h"
#include "totals/csv/csv_exchange.h"
#include "totals/csv/csv_file.h"
#include "totals/total_screen.h"

#include <algorithm>

namespace kurbo {
namespace {

QString totalMember() {
    return QStringLiteral("Total.tmp");
}

std::chrono::year_month shownMonth(const QString& text) {
    const auto month = parseSlashMonth(text);
    if (!month) throw foreignFile();
    return *month;
}

void checkMonths(const QStringList& selection) {
    (void)shownMonth(selection[2]);
    (void)shownMonth(selection[3]);
}

} // namespace

bool TotalScreen::saveKrb() {
    Prompts& prompts = client_.context.prompts;
    if (question_.section.isEmpty()) {
        prompts.exclaim(QStringLiteral("部課が入力されていません。"));
        return false;
    }
    if (!asked()) return false;
    const auto file = prompts.saveFile(cardFileFilter(), QStringLiteral("krb"));
    return file && guarded(client_.context, u"frmTotal", u"SaveTotal", false, [&] {
               saveCardFile(*file, totalMember(), sheet.grid,
                            {question_.section, question_.staff, slashMonth(question_.from), slashMonth(question_.to)});
               return true;
           });
}

bool TotalScreen::loadKrb() {
    if (!mayDiscard()) return false;
    const auto file = client_.context.prompts.openFile(cardFileFilter());
    return file && guarded(client_.context, u"frmTotal", u"LoadTotal", false, [&] {
               // From now on, also after a failure, the screen only shows until totals are drawn from the store.
               sheet.changed = hasSaved_ = false;
               sheet.blnFileMode = true;
               const QStringList selection = loadCardFile(*file, totalMember(), totalColumns, sheet.grid, checkMonths);
               readImage(sheet);
               TotalsQuestion question = question_;
               question.section = selection[0];
               question.staff = selection[1];
               question.from = shownMonth(selection[2]);
               question.to = shownMonth(selection[3]);
               question_ = question;
               boxes = {selection[2], selection[3]};
               ++spanChanges_;
               return true;
           });
}

// A card file may name anybody: before those totals are drawn from the store, the right to see them is asked for.
bool TotalScreen::leaveFile() {
    if (!sheet.blnFileMode) return true;
    return guarded(client_.context, u"frmTotal", u"LoadTotal", false, [this] {
        const Day last = addMonths(Day{question_.to / 1}, 1) - std::chrono::days(1);
        if (!switchSection(client_, question_.section, Day{question_.from / 1}, last)) return false;
        readPeople();
        const bool known =
            question_.staff.isEmpty() || std::ranges::find(people_, question_.staff, &CodeName::code) != people_.end();
        if (!known)
            throw Complaint(QStringLiteral("アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。"));
        return true;
    });
}

bool TotalScreen::saveCsv() {
    Prompts& prompts = client_.context.prompts;
    if (refusesFileMode(QStringLiteral("CSVﾌｧｲﾙの保存"))) return false;
    if (!hasSaved_) {
        prompts.exclaim(QStringLiteral("更新済の月次集計データがありません。"));
        return false;
    }
    if (!prompts.sure(QStringLiteral("表示されている更新済の月次集計データをCSV形式で保存します。"))) return false;
    const auto file = prompts.saveFile(QStringLiteral("CSVﾌｧｲﾙ(*.csv)|*.csv"), QStringLiteral("csv"));
    if (!file) return false;
    const auto id = [](std::chrono::year_month month) { return slashMonth(month).remove(u'/'); };
    const int count = guarded(client_.context, u"frmTotal", u"CsvSaveTotal", -1, [&] {
        return CsvSaveTotal(
            client_.context, *file,
            savedMonths(connection(), {question_.section, question_.staff, id(question_.from), id(question_.to)}));
    });
    if (count <= 0)
        prompts.exclaim(QStringLiteral("月次集計データの保存に失敗しました。"));
    else
        prompts.inform(QString::number(count) + QStringLiteral("件の月次集計データを保存しました。"));
    return count > 0;
}

} // namespace kurbo
