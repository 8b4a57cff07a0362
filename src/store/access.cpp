#include "store/access.h"

#include "store/record_set.h"

namespace kurbo {
namespace {

constexpr std::array fields{u"F_ReadMyKurbo",    u"F_ReadOtherKurbo",    u"F_WriteMyPlan",    u"F_WriteOtherPlan",
                            u"F_WriteMyTime",    u"F_WriteOtherTime",    u"F_WriteMyPaid",    u"F_WriteOtherPaid",
                            u"F_WriteMySpecial", u"F_WriteOtherSpecial", u"F_WriteMyCompens", u"F_WriteOtherCompens",
                            u"F_ReadMyGoOut",    u"F_ReadOtherGoOut",    u"F_WriteMyGoOut",   u"F_WriteOtherGoOut",
                            u"F_WriteMyMonthly", u"F_WriteOtherMonthly", u"F_DeleteMyData",   u"F_DeleteOtherData",
                            u"F_WriteApproval"};
static_assert(fields.size() == rightCount);

AccessRights granted(const RecordSet& row) {
    AccessRights access{true, true, false, {}};
    for (std::size_t i = 0; i < rightCount; ++i) access.rights[i] = row.value(QString::fromUtf16(fields[i])).yes();
    return access;
}

void withoutRow(const QString& staff, AccessRights& access) {
    access.IsAdmin = isAdminCode(staff);
    access.AccessFound = access.IsAdmin;
    access.CanPunch = false;
    access.set(Right::ReadMyKurbo, false);
    access.set(Right::ReadOtherKurbo, false);
}

} // namespace

QString fieldOf(Right right) {
    return QString::fromUtf16(fields[static_cast<std::size_t>(right)]);
}

bool GetAccess(const Context& context, Connection& connection, const QString& staff, const QString& section,
               AccessRights& access) {
    return guarded(context, u"basKurbo", u"GetAccess", false, [&] {
        const RecordSet row(connection,
                            QStringLiteral("SELECT * FROM M08_Access INNER JOIN M02_StaffInfo "
                                           "ON M08_Access.F_AccessCode = M02_StaffInfo.F_Access "
                                           "WHERE (M08_Access.F_Section = ?) AND (M02_StaffInfo.F_StaffCode = ?);"),
                            {section, staff});
        if (row.atRow())
            access = granted(row);
        else
            withoutRow(staff, access);
        return true;
    });
}

bool isPasswordOf(Connection& connection, const QString& staff, const QString& password) {
    return connection.hasRow(
        QStringLiteral("SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_StaffCode = ?) AND (F_PassWord = ?);"),
        {staff, password});
}

bool isAdminCode(const QString& staff) {
    return staff.toUpper() == adminCode();
}

} // namespace kurbo
