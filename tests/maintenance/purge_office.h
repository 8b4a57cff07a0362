#pragma once

#include "store/file/database_file.h"
#include "support/sample_company.h"

namespace kurbo::test {

// The sample company with destinations: 1 and 2 of 1002, 3 to 5 of 1001, 6 of one who isn't there any more. 1 and 4 are
// in use.
class PurgeOffice : public SampleCompany {
  protected:
    PurgeOffice() {
        int code = 0;
        for (const char16_t* user : {u"1002", u"1002", u"1001", u"1001", u"1001", u"9999"}) {
            ++code;
            connection.execute(u"INSERT INTO T04_Destination (F_DestCode, F_DestName, F_User) VALUES (?, ?, ?)"_q,
                               {code, u"得意先%1"_q.arg(code), QString::fromUtf16(user)});
        }
        addCard(1, today, u"09:00"_q, {});
        for (const int used : {1, 4})
            connection.execute(u"INSERT INTO T03_GoOut (F_KurboID, F_Order, F_Destination) VALUES (1, ?, ?)"_q,
                               {used, used});
        client.openHome();
    }
    void logIn(const QString& staff) { client.session.SessionStaff = staff; }
    // The codes that are still stored.
    [[nodiscard]] QString stored() {
        QString codes;
        Rows rows = connection.rows(u"SELECT F_DestCode FROM T04_Destination ORDER BY F_DestCode"_q);
        while (rows.next()) codes += rows.text(0);
        return codes;
    }
};

} // namespace kurbo::test
