#include "store/schema.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

#include <array>

namespace kurbo {
namespace {

// Columns are written as "name type"; "bands Work 3" stands for the start and end of the bands Work0 to Work2.
struct Table {
    const char* name;
    const char* columns;
    const char* key = "";    // enforced by the engine, one field
    const char* row = "";    // the fields that tell rows apart where the engine enforces no key
    const char* clause = ""; // relations
};

constexpr std::array tables{
    Table{.name = "C01_Corp",
          .columns = "F_Corp text,F_Branch text,F_ZipCode text,F_Pref text,F_Address1 text,F_Address2 text,"
                     "F_Tel text,F_Fax text,F_Title text,F_President text"},
    Table{.name = "C02_Section",
          .columns = "F_SectionCode text,F_SectionName text,F_Tel text,F_Fax text,F_DB text,F_Order int,"
                     "F_Display yesno",
          .key = "F_SectionCode"},
    Table{.name = "C03_Staff",
          .columns = "F_StaffCode text,F_StaffName text,F_Kana text,F_Section text,F_ZipCode text,F_Pref text,"
                     "F_Address1 text,F_Address2 text,F_Tel text,F_HPhone text,F_EMail text,F_Birth date,F_Sex int,"
                     "F_Join date,F_Retire date,F_Order int,F_Display yesno",
          .key = "F_StaffCode"},
    Table{.name = "M01_CorpInfo",
          .columns = "F_WorkStyle int,F_FlexStandard text,F_AmHolidayWork int,F_AmFlex yesno,F_AmFlexStandard text,"
                     "F_PmHolidayWork int,F_PmFlex yesno,F_PmFlexStandard text,F_RoundMethod int,F_RoundEnter int,"
                     "F_RoundLeave int,F_RoundHour int,F_RoundUnit int,F_CountUnit int,F_Diff yesno,"
                     "F_LegalOver yesno,F_Over yesno,F_Late yesno,F_Early yesno,F_Holiday yesno,F_HolidayLate yesno,"
                     "F_LegalHoliday yesno,F_LegalLate yesno,F_Absent yesno,F_Paid yesno,F_Special yesno,"
                     "F_Compens yesno,F_AbsentDay yesno,F_LateEnter yesno,F_EarlyLeave yesno"},
    Table{.name = "M02_StaffInfo",
          .columns = "F_StaffCode text,F_Password text,F_CloseDay int,F_PaidTotal single,F_EnterDelay int,"
                     "F_LeaveGain int,F_Weekday int,F_Holiday int,F_AmHoliday int,F_PmHoliday int,F_AdjustHours int,"
                     "F_Access int",
          .key = "F_StaffCode"},
    Table{.name = "M03_WeekdayStyle",
          .columns = "F_WeekdayCode int,F_WeekdayName text,bands Work 3,bands Flex 4,bands LegalOver 1,bands Over 3,"
                     "bands Late 3,bands AfterLate 1,bands Early 1",
          .key = "F_WeekdayCode"},
    Table{.name = "M04_HolidayStyle",
          .columns = "F_HolidayCode int,F_HolidayName text,bands Work 3,bands Late 3,bands AfterLate 1,bands Early 1",
          .key = "F_HolidayCode"},
    Table{.name = "M05_AmHolidayStyle",
          .columns = "F_AmHolidayCode int,F_AmHolidayName text,bands Work 2,bands Flex 2,bands LegalOver 1,"
                     "bands Over 3,bands Late 3,bands AfterLate 1,bands Early 2",
          .key = "F_AmHolidayCode"},
    Table{.name = "M06_PmHolidayStyle",
          .columns = "F_PmHolidayCode int,F_PmHolidayName text,bands Work 2,bands Flex 2,bands LegalOver 1,"
                     "bands Over 4,bands Late 3,bands AfterLate 1,bands Early 1",
          .key = "F_PmHolidayCode"},
    Table{.name = "M07_AdjustHours",
          .columns = "F_AdjustCode int,F_AdjustName text,F_LegalOver int,F_Over int,F_Late int,F_Early int,"
                     "F_Holiday int,F_HolidayLate int,F_LegalHoliday int,F_LegalLate int",
          .key = "F_AdjustCode"},
    Table{.name = "M08_Access",
          .columns = "F_AccessCode int,F_AccessName text,F_Section text,F_ReadMyKurbo yesno,F_ReadOtherKurbo yesno,"
                     "F_WriteMyPlan yesno,F_WriteOtherPlan yesno,F_WriteMyTime yesno,F_WriteOtherTime yesno,"
                     "F_WriteMyPaid yesno,F_WriteOtherPaid yesno,F_WriteMySpecial yesno,F_WriteOtherSpecial yesno,"
                     "F_WriteMyCompens yesno,F_WriteOtherCompens yesno,F_ReadMyGoOut yesno,F_ReadOtherGoOut yesno,"
                     "F_WriteMyGoOut yesno,F_WriteOtherGoOut yesno,F_WriteMyMonthly yesno,F_WriteOtherMonthly yesno,"
                     "F_DeleteMyData yesno,F_DeleteOtherData yesno,F_WriteApproval yesno,F_Order int",
          .row = "F_AccessCode,F_Section"},
    Table{.name = "T01_Calendar",
          .columns = "F_DateID text,F_Date date,F_Holiday text,F_Type text,F_Dummy any",
          .key = "F_DateID"},
    Table{.name = "T02_Kurbo",
          .columns = "F_KurboID int,F_DateID text,F_User text,F_Plan text,F_Enter date,F_Leave date,F_Paid text,"
                     "F_Special text,F_Compens text",
          .key = "F_KurboID",
          .clause = "FOREIGN KEY (F_DateID) REFERENCES T01_Calendar (F_DateID) ON UPDATE CASCADE ON DELETE CASCADE "
                    "DEFERRABLE INITIALLY DEFERRED"},
    Table{.name = "T03_GoOut",
          .columns = "F_KurboID int,F_Order int,F_Out date,F_In date,F_Destination int,F_Expense currency",
          .row = "F_KurboID,F_Order",
          .clause = "FOREIGN KEY (F_KurboID) REFERENCES T02_Kurbo (F_KurboID) ON UPDATE CASCADE ON DELETE CASCADE "
                    "DEFERRABLE INITIALLY DEFERRED"},
    Table{.name = "T04_Destination", .columns = "F_DestCode int,F_DestName text,F_User text", .key = "F_DestCode"},
    Table{.name = "T05_Approved",
          .columns = "F_Staff text,F_Section text,F_Year text,F_Month text,F_WorkDay int,F_Work int,"
                     "F_PaidTotal single,F_LegalOver int,F_Over int,F_Late int,F_Early int,F_Holiday int,"
                     "F_HolidayLate int,F_LegalHoliday int,F_LegalLate int,F_Absent int,F_Paid single,"
                     "F_Special single,F_Compens single,F_AbsentDay int,F_LateEnter int,F_EarlyLeave int,"
                     "F_PersonalApproval yesno,F_SuperiorApproval yesno,F_Term text",
          .row = "F_Staff,F_Year,F_Month"},
};

// One for each statement that searches a large table, and one for each relation.
constexpr std::array indexes{
    "C02_Section (F_Order)",
    "C03_Staff (F_Section, F_Order)",
    "C03_Staff (F_Order)",
    "M08_Access (F_AccessCode, F_Order)",
    "T01_Calendar (F_Date)",
    "T02_Kurbo (F_User, F_DateID)",
    "T02_Kurbo (F_DateID)",
    "T03_GoOut (F_KurboID, F_Order)",
    "T03_GoOut (F_Destination)",
    "T04_Destination (F_User, F_DestName)",
    "T05_Approved (F_Staff, F_Year, F_Month)",
    "T05_Approved (F_Section, F_Year, F_Month)",
    "T05_Approved (F_Year, F_Month)",
};

QByteArray declared(const QByteArray& name, const QByteArray& type) {
    if (type == "text") return name + " TEXT COLLATE NOCASE";
    if (type == "int") return name + " INTEGER CHECK (typeof(" + name + ") IN ('integer', 'null'))";
    if (type == "single") return name + " REAL";
    if (type == "yesno") return name + " YESNO NOT NULL DEFAULT 0";
    if (type == "currency") return name + " CURRENCY";
    if (type == "date")
        return name + ' ' + QByteArray::fromStdString(std::string(dateTimeType)) + " CHECK (" + name +
               " GLOB '[0-9][0-9][0-9][0-9]-[01][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-5][0-9]')";
    return name;
}

QByteArrayList columnsOf(const Table& table) {
    QByteArrayList columns;
    for (const QByteArray& column : QByteArray(table.columns).split(',')) {
        const QByteArrayList words = column.split(' ');
        if (words[0] != "bands") {
            const bool key = words[0] == table.key;
            // A whole-number key is the row's own number.
            const bool number = key && words[1] == "int";
            columns.append((number ? words[0] + " INTEGER" : declared(words[0], words[1])) +
                           (key ? " PRIMARY KEY NOT NULL" : ""));
            continue;
        }
        for (int i = 0; i < words[2].toInt(); ++i)
            for (const char* end : {"F_Start", "F_End"})
                columns.append(declared(end + words[1] + QByteArray::number(i), "text"));
    }
    return columns;
}

QByteArray created(const Table& table) {
    QByteArrayList parts = columnsOf(table);
    if (*table.clause) parts.append(table.clause);
    return QByteArray("CREATE TABLE ") + table.name + " (" + parts.join(", ") + ')';
}

QByteArray hashed(const QByteArray& salt, const QString& password) {
    return QCryptographicHash::hash(salt + password.toUtf8(), QCryptographicHash::Sha256).toHex();
}

// The seal stands in a view, so that the file holds the sixteen tables and nothing else.
QByteArray seal(const QString& password) {
    std::array<quint32, 4> random{};
    QRandomGenerator::system()->fillRange(random.data(), random.size());
    const QByteArray salt = QByteArray(reinterpret_cast<const char*>(random.data()), sizeof random).toHex();
    return "CREATE VIEW S_Seal AS SELECT '" + salt + ':' + hashed(salt, password) + "' AS F_Seal";
}

} // namespace

QList<QByteArray> schemaStatements(const QString& password) {
    QList<QByteArray> statements;
    for (const Table& table : tables) statements.append(created(table));
    const QStringList names = indexNames();
    for (std::size_t i = 0; i < indexes.size(); ++i)
        statements.append("CREATE INDEX " + names[static_cast<qsizetype>(i)].toLatin1() + " ON " + indexes[i]);
    statements.append(seal(password));
    statements.append("PRAGMA application_id=" + QByteArray::number(applicationId));
    statements.append("PRAGMA user_version=" + QByteArray::number(schemaVersion));
    return statements;
}

QStringList tableNames() {
    QStringList names;
    for (const Table& table : tables) names.append(QString::fromLatin1(table.name));
    return names;
}

QStringList indexNames() {
    QStringList names;
    for (std::size_t number = 1; number <= indexes.size(); ++number)
        names.append(QStringLiteral("I_%1").arg(number, 2, 10, QLatin1Char('0')));
    return names;
}

QStringList keyOf(const QString& tableName) {
    for (const Table& table : tables) {
        if (tableName.compare(QLatin1StringView(table.name), Qt::CaseInsensitive) != 0) continue;
        const QString fields = QString::fromLatin1(*table.key ? table.key : table.row);
        return fields.split(u',', Qt::SkipEmptyParts);
    }
    return {};
}

bool sealMatches(const QString& seal, const QString& password) {
    const QByteArrayList parts = seal.toLatin1().split(':');
    return parts.size() == 2 && hashed(parts[0], password) == parts[1];
}

} // namespace kurbo
