#pragma once

#include "store/file/database_file.h"
#include "support/sample_company.h"

namespace kurbo::test {

// The sample company with somebody logged in. 1001 may correct the own times, 1002 everything of everybody; the card of
// April 2026 holds a plain day on the 1st (seconds included), a night on the 2nd and an enter alone on the 3rd.
class CardOffice : public SampleCompany {
  protected:
    CardOffice() {
        connection.execute(u"UPDATE M08_Access SET F_WriteMyTime = True WHERE (F_AccessCode = 1)"_q);
        connection.execute(
            u"UPDATE M08_Access SET F_WriteMyTime = True, F_WriteOtherTime = True, F_WriteOtherPlan = True, "
            "F_WriteOtherPaid = True, F_WriteOtherMonthly = True, F_WriteMyMonthly = True, "
            "F_DeleteOtherData = True WHERE (F_AccessCode = 2)"_q);
        connection.execute(u"UPDATE M02_StaffInfo SET F_CloseDay = 20 WHERE (F_StaffCode = '1002')"_q);
        addCard(1, *makeDay(2026, 4, 1), u"08:52"_q, u"18:05"_q);
        addCard(2, *makeDay(2026, 4, 2), u"21:00"_q, {});
        addCard(3, *makeDay(2026, 4, 3), u"09:00"_q, {});
        connection.execute(u"UPDATE T02_Kurbo SET F_Enter = #2026/04/01 08:52:17# WHERE (F_KurboID = 1)"_q);
        connection.execute(u"UPDATE T02_Kurbo SET F_Leave = #2026/04/03 06:30:00# WHERE (F_KurboID = 2)"_q);
    }

    void logIn(const QString& staff) {
        client.openHome();
        client.session.SessionSection = u"S01"_q;
        client.session.SessionStaff = staff;
        ASSERT_TRUE(GetAccess(desk.context, client.HomeConnection, staff, mySection(), client.session.access));
    }

    // Another site's file, in which section S02 lives with 2001; 1002 may look there, and correct times.
    QString addOtherSite() {
        const QString other = desk.file(u"other.mdb"_q);
        makeSampleCompany(other);
        insert("C02_Section", "SectionCode, SectionName, DB, Order, Display",
               u"'S02', '工場', '%1', 2, True"_q.arg(other));
        Connection site;
        site.open(other, databasePassword());
        site.execute(u"INSERT INTO C03_Staff (F_StaffCode, F_StaffName, F_Section, F_Order, F_Display) "
                     "VALUES ('2001', '工藤四郎', 'S02', 1, True)"_q);
        site.execute(u"INSERT INTO M02_StaffInfo (F_StaffCode, F_CloseDay, F_PaidTotal, F_EnterDelay, F_LeaveGain, "
                     "F_Weekday, F_Holiday) VALUES ('2001', 31, 20, 0, 0, 1, 1)"_q);
        site.execute(u"INSERT INTO M08_Access (F_AccessCode, F_AccessName, F_Section, F_ReadOtherKurbo, "
                     "F_WriteOtherTime, F_Order) VALUES (2, '所属長', 'S02', True, True, 2)"_q);
        return other;
    }
};

} // namespace kurbo::test
