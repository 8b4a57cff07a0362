#include "card/outings/go_out_rules.h"

#include "base/field_tests.h"
#include "base/system/code_page.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

bool isTime(const QString& text) {
    constexpr qsizetype colon = 2;
    return text.size() > colon && text[colon] == u':' && IsSingleByte(text) && isTimeText(text);
}

bool isDestination(const QString& text) {
    constexpr int mostBytes = 30;
    return byteLength(text) <= mostBytes;
}

bool isMoney(const QString& text) {
    return moneyOf(text).has_value();
}

struct Entry {
    GoOutColumn column;
    bool (*takes)(const QString& text);
    // What an edit that can't be taken is told, and what a whole row is.
    const char16_t* typed;
    const char16_t* checked;
};

// Both times ask for the time of leaving.
constexpr std::array entries{
    Entry{GoOutColumn::Out, isTime, u"不正な入力です。時刻をhh:mm形式(半角)で入力して下さい。",
          u"外出時刻が不正です。外出時刻をhh:mm形式(半角)で入力して下さい。"},
    Entry{GoOutColumn::In, isTime, u"不正な入力です。時刻をhh:mm形式(半角)で入力して下さい。",
          u"帰社時刻が不正です。外出時刻をhh:mm形式(半角)で入力して下さい。"},
    Entry{GoOutColumn::Destination, isDestination,
          u"不正な入力です。外出先は全角15文字(半角30文字)以内で入力して下さい。",
          u"外出先が不正です。外出先は全角15文字(半角30文字)以内で入力して下さい。"},
    Entry{GoOutColumn::Expense, isMoney, u"不正な入力です。金額を入力して下さい。",
          u"金額が不正です。金額を入力して下さい。"},
};

} // namespace

bool GoOutRules::mayEdit(int row, int column) const {
    return sheet_.mayWrite() && row >= firstGoOut &&
           std::ranges::find(entries, static_cast<GoOutColumn>(column), &Entry::column) != entries.end();
}

QString GoOutRules::refusal(int /*row*/, int column, const QString& text) const {
    for (const Entry& entry : entries)
        if (entry.column == static_cast<GoOutColumn>(column) && !entry.takes(text))
            return QString::fromUtf16(entry.typed);
    return {};
}

void GoOutRules::edited(int row, int column) {
    const int expense = static_cast<int>(GoOutColumn::Expense);
    const QString text = sheet_.grid.TextMatrix(row, column);
    if (column == static_cast<int>(GoOutColumn::Destination) && !text.isEmpty()) {
        const std::int64_t last = lastExpense_(text);
        if (last > 0) sheet_.grid.TextMatrix(row, expense, moneyText(last));
    }
    // An amount typed or pasted with its signs is held without them.
    if (const auto money = moneyOf(text); column == expense && money)
        sheet_.grid.TextMatrix(row, expense, moneyText(*money));
    totalGoOut(sheet_);
    sheet_.touch();
}

QString GoOutRules::tip(int row, int /*column*/) const {
    return row >= firstGoOut && sheet_.granted && sheet_.key < 1
               ? QStringLiteral("タイムカードの打刻記録が無いため編集できません")
               : QString();
}

bool GoOutRules::isJapanese(int column) const {
    return column == static_cast<int>(GoOutColumn::Destination);
}

QString goOutRowRefusal(const GoOutSheet& sheet, int row) {
    for (const Entry& entry : entries) {
        const QString text = sheet.grid.CellText(row, static_cast<int>(entry.column));
        const QString held = sheet.text(row, entry.column);
        const bool money = entry.column == GoOutColumn::Expense;
        if (!held.isEmpty() && !entry.takes(money ? held : text)) return QString::fromUtf16(entry.checked);
    }
    return {};
}

} // namespace kurbo
