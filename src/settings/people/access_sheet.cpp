#include "settings/people/access_sheet.h"

#include "base/failure.h"
#include "base/system/code_page.h"
#include "store/access.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

constexpr int emptyRows = 20;
constexpr int sectionColumn = static_cast<int>(AccessColumn::Section);
constexpr int firstRight = static_cast<int>(AccessColumn::FirstRight);
constexpr int lastRight = static_cast<int>(AccessColumn::LastRight);

// A heading spans the right over the own data and that over other people's; the approval stands alone.
struct Heading {
    const char16_t* caption;
    const char16_t* data;               // in the tip, what the right is over
    const char16_t* verb;               // and what it allows
    bool clsWorkTime::*shown = nullptr; // always when null
};

constexpr std::array headings{
    Heading{.caption = u"出勤閲覧", .data = u"タイムカード", .verb = u"閲覧"},
    Heading{.caption = u"予定更新", .data = u"予定", .verb = u"更新"},
    Heading{.caption = u"出退更新", .data = u"出退社時刻", .verb = u"更新"},
    Heading{.caption = u"有休更新", .data = u"有給休暇", .verb = u"更新", .shown = &clsWorkTime::pbleEnablePaid},
    Heading{.caption = u"特休更新", .data = u"特別休暇", .verb = u"更新", .shown = &clsWorkTime::pbleEnableSpecial},
    Heading{.caption = u"代休更新", .data = u"代休", .verb = u"更新", .shown = &clsWorkTime::pbleEnableCompens},
    Heading{.caption = u"外出閲覧", .data = u"外出明細", .verb = u"閲覧"},
    Heading{.caption = u"外出更新", .data = u"外出明細", .verb = u"更新"},
    Heading{.caption = u"月次更新", .data = u"月次集計データ", .verb = u"更新"},
    Heading{.caption = u"削除", .data = u"タイムカード", .verb = u"削除"},
};
static_assert(firstRight + 2 * headings.size() == lastRight);

QString formatString() {
    QString format = QStringLiteral("|^ｺｰﾄﾞ|^名称|^部課");
    for (const Heading& heading : headings)
        for (int side = 0; side < 2; ++side) format += QStringLiteral("|^") + QString::fromUtf16(heading.caption);
    return format + QStringLiteral("|^承認");
}

void writeSecondHeading(GridModel& grid) {
    QStringList cells{{}, {}, {}, QStringLiteral("部課")};
    for (std::size_t heading = 0; heading < headings.size(); ++heading)
        cells << QStringLiteral("自") << QStringLiteral("他");
    grid.fillRow(1, cells << QStringLiteral("承認") << QString());
}

void describeColumns(GridModel& grid, const clsWorkTime& style) {
    constexpr Twips sectionWidth{1500};
    constexpr Twips rightWidth{500};
    for (const auto column : {AccessColumn::Code, AccessColumn::Name, AccessColumn::Order})
        grid.ColHidden(static_cast<int>(column), true);
    grid.ColWidth(static_cast<int>(AccessColumn::No), rightWidth);
    grid.ColWidth(sectionColumn, sectionWidth);
    grid.ColAlignment(sectionColumn, GridAlign::Left);
    for (int column = firstRight; column <= lastRight; ++column) {
        grid.ColWidth(column, rightWidth);
        grid.ColDataType(column, GridType::YesNo);
        const auto heading = static_cast<std::size_t>(column - firstRight) / 2;
        if (column != lastRight && headings[heading].shown) grid.ColHidden(column, !(style.*headings[heading].shown));
    }
}

QString fieldAt(int column) {
    return fieldOf(static_cast<Right>(column - firstRight));
}

struct AccessRow {
    QString section;
    std::array<bool, rightCount> rights{};
};

QList<AccessRow> storedRows(Connection& connection, int code) {
    QStringList fields{QStringLiteral("F_Section")};
    for (int column = firstRight; column <= lastRight; ++column) fields.append(fieldAt(column));
    Rows rows = connection.rows(QStringLiteral("SELECT %1 FROM M08_Access WHERE (F_AccessCode = ?) ORDER BY F_Order;")
                                    .arg(fields.join(QStringLiteral(", "))),
                                {code});
    QList<AccessRow> stored;
    while (rows.next()) {
        AccessRow row{rows.text(0)};
        for (std::size_t right = 0; right < rightCount; ++right)
            row.rights[right] = rows.yes(static_cast<int>(right) + 1);
        stored.append(row);
    }
    return stored;
}

bool isListed(const GridList& list, const QString& code) {
    return std::ranges::any_of(list.entries(), [&](const GridList::Entry& entry) {
        return !entry.code.isEmpty() && entry.code.compare(code, Qt::CaseInsensitive) == 0;
    });
}

void checkSection(const AccessSheet& sheet, int row) {
    const QString section = sheet.sectionOf(row);
    for (int later = row + 1; later < sheet.grid.Rows(); ++later)
        if (sheet.sectionOf(later).compare(section, Qt::CaseInsensitive) == 0)
            throw Complaint(QStringLiteral("１つの部課に複数のアクセス権が設定されています。"));
    if (!isListed(sheet.grid.ColComboList(sectionColumn), section))
        throw Complaint(QStringLiteral("部課名が不正です。部課名はリストから選択して下さい。"));
}

// A row without a section isn't stored, and its rights would be lost.
void refuseLostRights(const AccessSheet& sheet, int row) {
    for (int column = firstRight; column <= lastRight; ++column)
        if (!sheet.grid.ColHidden(column) && sheet.grid.CellChecked(row, column))
            throw Complaint(lines(QStringLiteral("%1行目で部課が選択されていません。").arg(row - firstAccessRow + 1),
                                  QStringLiteral("部課を選択するか、その行のチェックを全て外して下さい。")));
}

void checkName(Connection& connection, int code, const QString& name) {
    const QString change = QStringLiteral("アクセス権名称を変更して下さい。");
    if (code == 0 &&
        connection.hasRow(QStringLiteral("SELECT F_AccessCode FROM M08_Access WHERE (F_AccessName = ?);"), {name}))
        throw Complaint(lines(change, QStringLiteral("同じアクセス権名称が既に登録されています。")));
    if (name.isEmpty()) throw Complaint(QStringLiteral("アクセス権名称が入力されていません。"));
    if (name == newAccessName())
        throw Complaint(lines(change, QStringLiteral("名称「%1」は使用できません。").arg(newAccessName())));
    if (!accessNameRefusal(name).isEmpty())
        throw Complaint(
            QStringLiteral("アクセス権名称が不正です。アクセス権名称は全角15文字(半角30文字)以内で入力します。"));
}

void insertRow(Connection& connection, const Values& key, const AccessSheet& sheet, int row) {
    QStringList fields{QStringLiteral("F_AccessCode"), QStringLiteral("F_AccessName"), QStringLiteral("F_Order"),
                       QStringLiteral("F_Section")};
    Values values = key;
    values.append(sheet.sectionOf(row));
    for (int column = firstRight; column <= lastRight; ++column) {
        fields.append(fieldAt(column));
        values.append(Value::yesNo(!sheet.grid.ColHidden(column) && sheet.grid.CellChecked(row, column)));
    }
    const QString placeholders = QStringList(fields.size(), QStringLiteral("?")).join(QStringLiteral(", "));
    connection.execute(
        QStringLiteral("INSERT INTO M08_Access (%1) VALUES (%2)").arg(fields.join(QStringLiteral(", ")), placeholders),
        values);
}

} // namespace

QString newAccessName() {
    return QStringLiteral("新しいアクセス権");
}

QString deletedAccessText() {
    return QStringLiteral("選択したアクセス権は他のユーザーによって削除されています。");
}

QString AccessSheet::sectionOf(int row) const {
    return grid.TextMatrix(row, sectionColumn).trimmed();
}

bool AccessRules::mayEdit(int row, int column) const {
    return row >= firstAccessRow && column >= sectionColumn && column <= lastRight;
}

QString AccessRules::refusal(int /*row*/, int column, const QString& text) const {
    const bool listed = column != sectionColumn || sheet_.grid.ColComboList(sectionColumn).hasText(text);
    return listed ? QString() : QStringLiteral("不正な入力です。リストから選択して下さい。");
}

void AccessRules::edited(int /*row*/, int /*column*/) {
    if (sheet_.onEdit) sheet_.onEdit();
}

QString AccessRules::tip(int /*row*/, int column) const {
    const QString help = QStringLiteral("(詳細はF1ｷｰを押してﾍﾙﾌﾟを参照して下さい)");
    if (column == sectionColumn) return QStringLiteral("アクセス権の設定対象部課を選択します") + help;
    if (column == lastRight) return QStringLiteral("タイムカードの承認権を設定します") + help;
    if (column < firstRight || column > lastRight) return {};
    const Heading& heading = headings[static_cast<std::size_t>(column - firstRight) / 2];
    const bool own = (column - firstRight) % 2 == 0;
    return QStringLiteral("%1の%2の%3権を設定します%4")
        .arg(own ? QStringLiteral("自分") : QStringLiteral("他ﾕｰｻﾞｰ"), QString::fromUtf16(heading.data),
             QString::fromUtf16(heading.verb), help);
}

QList<CodeName> accessNames(Connection& connection) {
    QList<CodeName> names;
    Rows rows = connection.rows(
        QStringLiteral("SELECT DISTINCT F_AccessCode, F_AccessName FROM M08_Access ORDER BY F_AccessCode;"));
    while (rows.next()) names.append({rows.text(0), rows.text(1)});
    return names;
}

QString accessSections(Connection& connection) {
    QString list = QStringLiteral("|#%1;所属部課").arg(mySection());
    for (const CodeName& section : displayedSections(connection))
        list += QStringLiteral("|#%1;%2").arg(section.code, section.name);
    return list;
}

void ShowAccess(Connection& connection, int code, const clsWorkTime& style, AccessSheet& sheet) {
    const QList<AccessRow> stored = storedRows(connection, code);
    const QString sections = accessSections(connection);
    GridModel& grid = sheet.grid;
    const Undrawn undrawn(grid);
    const int rows = firstAccessRow + static_cast<int>(stored.size()) + emptyRows;
    grid.reset({.rows = rows, .columns = accessColumns, .fixedRows = firstAccessRow});
    grid.FormatString(formatString());
    grid.MergeHeadings(true);
    writeSecondHeading(grid);
    describeColumns(grid, style);
    grid.ColComboList(sectionColumn, sections);
    for (int i = 0; i < stored.size(); ++i) {
        grid.TextMatrix(firstAccessRow + i, sectionColumn, stored[i].section);
        for (int column = firstRight; column <= lastRight; ++column)
            grid.CellChecked(firstAccessRow + i, column,
                             stored[i].rights[static_cast<std::size_t>(column - firstRight)]);
    }
    for (int row = firstAccessRow; row < rows; ++row)
        grid.TextMatrix(row, 0, QString::number(row - firstAccessRow + 1));
    grid.clearRowStatus();
}

QString accessNameRefusal(const QString& name) {
    constexpr int mostBytes = 30;
    return byteLength(name) <= mostBytes
               ? QString()
               : QStringLiteral("不正な入力です。アクセス権名称は全角15文字(半角30文字)以内で入力します。");
}

void checkAccess(Connection& connection, int code, const QString& name, const AccessSheet& sheet) {
    checkName(connection, code, name);
    bool used = false;
    for (int row = firstAccessRow; row < sheet.grid.Rows(); ++row) used = used || !sheet.sectionOf(row).isEmpty();
    if (!used)
        throw Complaint(lines(QStringLiteral("アクセス権を削除する場合は削除ボタンをクリックして下さい。"),
                              QStringLiteral("有効なデータが入力されていません。")));
    for (int row = firstAccessRow; row < sheet.grid.Rows(); ++row)
        sheet.sectionOf(row).isEmpty() ? refuseLostRights(sheet, row) : checkSection(sheet, row);
}

int GetNextAccessCode(Connection& connection) {
    const auto last =
        connection.lastValue(QStringLiteral("SELECT F_AccessCode FROM M08_Access ORDER BY F_AccessCode;"));
    return last ? static_cast<int>(last->integer()) + 1 : 1;
}

int UpdateAccess(Connection& connection, int code, const QString& name, const AccessSheet& sheet) {
    Transaction transaction(connection);
    if (code == 0)
        code = GetNextAccessCode(connection);
    else if (connection.execute(QStringLiteral("DELETE * FROM M08_Access WHERE (F_AccessCode = ?);"), {code}) == 0)
        throw Complaint(deletedAccessText());
    int order = 0;
    for (int row = firstAccessRow; row < sheet.grid.Rows(); ++row)
        if (!sheet.sectionOf(row).isEmpty()) insertRow(connection, {code, name, ++order}, sheet, row);
    transaction.commit();
    return code;
}

bool IsUsedAccess(Connection& connection, int code) {
    return connection.hasRow(QStringLiteral("SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_Access = ?);"), {code});
}

void DeleteAccess(Connection& connection, int code) {
    Transaction transaction(connection);
    if (IsUsedAccess(connection, code))
        throw Complaint(QStringLiteral("表示されているアクセス権は使用されているため削除できません。"));
    connection.execute(QStringLiteral("DELETE * FROM M08_Access WHERE (F_AccessCode = ?);"), {code});
    transaction.commit();
}

} // namespace kurbo
