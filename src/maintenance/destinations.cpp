#include "maintenance/destinations.h"

#include "store/readers.h"

namespace kurbo {
namespace {

constexpr auto module = u"frmDeleteDest";

enum Column { Number, User, Code, Name, Columns };

QString ownStatement() {
    return QStringLiteral(
        "SELECT T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName "
        "FROM T04_Destination LEFT JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination "
        "WHERE (T03_GoOut.F_Destination Is Null) AND (T04_Destination.F_User = ?) "
        "ORDER BY T04_Destination.F_DestCode;");
}

QString allStatement() {
    return QStringLiteral(
        "SELECT T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName "
        "FROM (T04_Destination LEFT JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination) "
        "INNER JOIN C03_Staff ON T04_Destination.F_User = C03_Staff.F_StaffCode "
        "WHERE T03_GoOut.F_Destination Is Null "
        "GROUP BY T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName, C03_Staff.F_Order "
        "ORDER BY C03_Staff.F_Order, T04_Destination.F_DestCode;");
}

QList<QStringList> unusedDestinations(Connection& connection, const QString& user) {
    QList<QStringList> found;
    Rows rows = isAdminCode(user) ? connection.rows(allStatement()) : connection.rows(ownStatement(), {user});
    while (rows.next())
        found.append({QString::number(found.size() + 1), rows.text(0), QString::number(rows.integer(1)), rows.text(2)});
    return found;
}

void fill(GridModel& grid, const QList<QStringList>& found, const QString& names, bool admin) {
    const Undrawn undrawn(grid);
    grid.reset({.rows = static_cast<int>(found.size()) + 1, .columns = Columns});
    grid.FormatString(QStringLiteral("|^氏名|^ｺｰﾄﾞ|^外出先"));
    for (int row = 0; row < found.size(); ++row) grid.fillRow(row + 1, found[row]);
    grid.ColComboList(User, names);
    for (const auto& [column, twips] : {std::pair{Number, 500}, {User, 1500}, {Name, 4000}})
        grid.ColWidth(column, Twips(twips));
    grid.ColHidden(User, !admin);
    grid.ColHidden(Code, true);
}

} // namespace

bool ShowDestination(const Context& context, Connection& connection, const QString& user, GridModel& grid) {
    const auto names =
        VfgComboList(context, connection, QStringLiteral("SELECT F_StaffCode, F_StaffName FROM C03_Staff;"),
                     QStringLiteral("F_StaffName"), QStringLiteral("F_StaffCode"), false);
    if (!names) return false;
    return guarded(context, module, u"ShowDestination", false, [&] {
        fill(grid, unusedDestinations(connection, user), *names, isAdminCode(user));
        return true;
    });
}

bool DeleteDestination(const Context& context, Connection& connection, const GridModel& grid, RowSpan rows) {
    return guarded(context, module, u"DeleteDestination", false, [&] {
        Transaction transaction(connection);
        for (int row = rows.first; row <= rows.last; ++row)
            connection.execute(QStringLiteral("DELETE * FROM T04_Destination WHERE F_DestCode = ?"),
                               {grid.TextMatrix(row, Code).toInt()});
        transaction.commit();
        return true;
    });
}

bool DestinationList::show() {
    return ShowDestination(client_.context, client_.HomeConnection, client_.session.SessionStaff, grid);
}

std::optional<RowSpan> DestinationList::chosenRows(RowSpan selected) const {
    const RowSpan all{1, grid.Rows() - 1};
    if (all.last < all.first) {
        client_.context.prompts.exclaim(QStringLiteral("削除するデータがありません。"));
        return {};
    }
    return selected.first < all.first || selected.last < all.first ? all : selected;
}

bool DestinationList::remove(RowSpan rows) {
    Prompts& prompts = client_.context.prompts;
    if (!prompts.sure(QStringLiteral("選択した外出先を削除します。削除した外出先は復活できません。"))) return false;
    const bool gone = DeleteDestination(client_.context, client_.HomeConnection, grid, rows);
    if (gone)
        (void)show();
    else
        prompts.exclaim(QStringLiteral("外出先の削除に失敗しました。"));
    return gone;
}

} // namespace kurbo
