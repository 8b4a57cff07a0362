#include "month/loaders.h"

#include "month/quantities.h"

#include "store/record_set.h"

#include <array>

namespace kurbo {
namespace {

constexpr QStringView module = u"basKurbo";

[[noreturn]] void complain(const QString& fault, const QString& advice) {
    throw Complaint(lines(fault, advice));
}

// Fields of one row, of which Null is a fault of the setting.
class Row final {
  public:
    Row(const RecordSet& set, QString fault, QString advice)
        : set_(set), fault_(std::move(fault)), advice_(std::move(advice)) {}

    [[nodiscard]] Value value(const QString& field) const { return set_.value(field); }
    [[nodiscard]] Value needed(const QString& field) const {
        const Value found = value(field);
        if (found.isNull()) fail();
        return found;
    }
    [[nodiscard]] int number(const QString& field) const { return static_cast<int>(needed(field).integer()); }
    [[noreturn]] void fail() const { complain(fault_, advice_); }

  private:
    const RecordSet& set_;
    QString fault_;
    QString advice_;
};

QString styleAdvice() {
    return QStringLiteral("管理者に勤務形態設定の確認を依頼して下さい。");
}

void readHalfDays(const Row& row, clsWorkTime& rules) {
    rules.plngAmHolidayWork = static_cast<int>(row.value(QStringLiteral("F_AmHolidayWork")).integer());
    if (rules.plngAmHolidayWork != 0) rules.pbleAmFlexTime = row.value(QStringLiteral("F_AmFlex")).yes();
    if (rules.pbleAmFlexTime) rules.pstrAmStandardTime(row.needed(QStringLiteral("F_AmFlexStandard")).text());
    rules.plngPmHolidayWork = static_cast<int>(row.value(QStringLiteral("F_PmHolidayWork")).integer());
    if (rules.plngPmHolidayWork != 0) rules.pblePmFlexTime = row.value(QStringLiteral("F_PmFlex")).yes();
    if (rules.pblePmFlexTime) rules.pstrPmStandardTime(row.needed(QStringLiteral("F_PmFlexStandard")).text());
}

void readStyle(const Row& row, clsWorkTime& rules) {
    rules.pbleFlexTime = row.needed(QStringLiteral("F_WorkStyle")).yes();
    if (rules.pbleFlexTime) rules.pstrStandardTime(row.needed(QStringLiteral("F_FlexStandard")).text());
    readHalfDays(row, rules);
}

void readRounding(const Row& row, clsWorkTime& rules) {
    rules.plngRoundMethod = row.number(QStringLiteral("F_RoundMethod"));
    if (rules.plngRoundMethod == 0) {
        rules.plngRoundEnter = row.number(QStringLiteral("F_RoundEnter"));
        rules.plngRoundLeave = row.number(QStringLiteral("F_RoundLeave"));
    } else if (rules.plngRoundMethod == 1) {
        rules.plngRoundHour = row.number(QStringLiteral("F_RoundHour"));
    }
    rules.plngRoundUnit(Minutes(row.number(QStringLiteral("F_RoundUnit"))));
    rules.plngCountUnit = row.number(QStringLiteral("F_CountUnit"));
    // Rounding by the month always shows hours and minutes.
    if (rules.plngRoundMethod == 1) rules.plngCountUnit = 1;
}

// The bands of one kind of day as its table holds them: the columns F_Start and F_End with the word and a number. On a
// flexible day the work columns hold the core bands.
struct BandColumns {
    const char16_t* word;
    BandKind kind;
    int count;
};

struct DayTable {
    DayType day;
    const char16_t* join; // the table, the person's code, the table's code
    const char16_t* name; // begins the faults; empty where a missing band is no fault
    std::array<BandColumns, 7> columns;
};

constexpr std::array dayTables{
    DayTable{DayType::Weekday,
             u"M03_WeekdayStyle ON M02_StaffInfo.F_Weekday = M03_WeekdayStyle.F_WeekdayCode",
             u"平日勤務時間",
             {BandColumns{u"Work", BandKind::Work, 3},
              {u"Flex", BandKind::Flex, 4},
              {u"LegalOver", BandKind::LegalOver, 1},
              {u"Late", BandKind::Late, 3},
              {u"Over", BandKind::Over, 3},
              {u"AfterLate", BandKind::AfterLate, 1},
              {u"Early", BandKind::Early, 1}}},
    DayTable{DayType::Holiday,
             u"M04_HolidayStyle ON M02_StaffInfo.F_Holiday = M04_HolidayStyle.F_HolidayCode",
             u"",
             {BandColumns{u"Work", BandKind::Work, 3},
              {u"Flex", BandKind::Flex, 0},
              {u"LegalOver", BandKind::LegalOver, 0},
              {u"Late", BandKind::Late, 3},
              {u"Over", BandKind::Over, 0},
              {u"AfterLate", BandKind::AfterLate, 1},
              {u"Early", BandKind::Early, 1}}},
    DayTable{DayType::AmHoliday,
             u"M05_AmHolidayStyle ON M02_StaffInfo.F_AmHoliday = M05_AmHolidayStyle.F_AmHolidayCode",
             u"午前休日勤務時間",
             {BandColumns{u"Work", BandKind::Work, 2},
              {u"Flex", BandKind::Flex, 2},
              {u"LegalOver", BandKind::LegalOver, 1},
              {u"Late", BandKind::Late, 3},
              {u"Over", BandKind::Over, 3},
              {u"AfterLate", BandKind::AfterLate, 1},
              {u"Early", BandKind::Early, 2}}},
    DayTable{DayType::PmHoliday,
             u"M06_PmHolidayStyle ON M02_StaffInfo.F_PmHoliday = M06_PmHolidayStyle.F_PmHolidayCode",
             u"午後休日勤務時間",
             {BandColumns{u"Work", BandKind::Work, 2},
              {u"Flex", BandKind::Flex, 2},
              {u"LegalOver", BandKind::LegalOver, 1},
              {u"Late", BandKind::Late, 3},
              {u"Over", BandKind::Over, 4},
              {u"AfterLate", BandKind::AfterLate, 1},
              {u"Early", BandKind::Early, 1}}},
};

QString timeAdvice() {
    return QStringLiteral("管理者に勤務時間設定の確認を依頼して下さい。");
}

// What a Null pair does.
enum class Gap { Skip, End, Needed };

class DayLoader final {
  public:
    DayLoader(const RecordSet& row, const DayTable& table, clsWorkTime& rules)
        : row_(row), table_(table), rules_(rules) {}

    void load(bool flexible) {
        const bool ordinary = table_.day == DayType::Holiday;
        for (const BandColumns& columns : table_.columns) {
            if (flexible && columns.kind == BandKind::LegalOver) continue;
            if (!flexible && columns.kind == BandKind::Flex) continue;
            const bool core = flexible && columns.kind == BandKind::Work;
            const bool needed = !ordinary && columns.kind == (flexible ? BandKind::Flex : BandKind::Work);
            read(columns, core ? BandKind::Core : columns.kind, needed);
        }
    }

  private:
    void read(const BandColumns& columns, BandKind kind, bool needed) {
        for (int i = 0; i < columns.count; ++i) {
            const QString column = QString::fromUtf16(columns.word) + QString::number(i);
            const Value start = row_.value(QStringLiteral("F_Start") + column);
            const Value end = row_.value(QStringLiteral("F_End") + column);
            if (!start.isNull() && !end.isNull()) {
                rules_.setStart(table_.day, kind, i, start.text());
                rules_.setEnd(table_.day, kind, i, end.text());
            } else if (needed && i == 0) {
                complain(QString::fromUtf16(table_.name) +
                             (kind == BandKind::Flex ? QStringLiteral("でフレキシブルタイムが設定されていません。")
                                                     : QStringLiteral("で就業時間が設定されていません。")),
                         timeAdvice());
            } else if (needed) {
                return;
            }
        }
    }

    const RecordSet& row_;
    const DayTable& table_;
    clsWorkTime& rules_;
};

QString columnList(const DayTable& table) {
    QStringList fields;
    for (const BandColumns& columns : table.columns)
        for (int i = 0; i < columns.count; ++i)
            for (const char16_t* end : {u"F_Start", u"F_End"})
                fields.append(QString::fromUtf16(end) + QString::fromUtf16(columns.word) + QString::number(i));
    return fields.join(QStringLiteral(", "));
}

void loadDay(Connection& connection, const DayTable& table, clsWorkTime& rules, const QString& staff, bool flexible) {
    const RecordSet row(connection,
                        QStringLiteral("SELECT ") + columnList(table) +
                            QStringLiteral(" FROM M02_StaffInfo INNER JOIN ") + QString::fromUtf16(table.join) +
                            QStringLiteral(" WHERE (M02_StaffInfo.F_StaffCode = ?);"),
                        {staff});
    if (!row.isEmpty())
        DayLoader(row, table, rules).load(flexible);
    else if (table.day == DayType::Weekday)
        complain(QStringLiteral("平日勤務時間設定に不備があります。"), timeAdvice());
}

} // namespace

QString companyStyleStatement() {
    return QStringLiteral(
               "SELECT F_WorkStyle, F_FlexStandard, F_AmHolidayWork, F_AmFlex, F_AmFlexStandard, F_PmHolidayWork, "
               "F_PmFlex, "
               "F_PmFlexStandard, F_RoundMethod, F_RoundEnter, F_RoundLeave, F_RoundHour, F_RoundUnit, F_CountUnit, "
               "F_Diff, ") +
           switchFields() + QStringLiteral(" FROM M01_CorpInfo;");
}

void readCompanyStyle(Connection& connection, clsWorkTime& rules) {
    const QString fault = QStringLiteral("勤務形態設定に不備があります。");
    const RecordSet set(connection, companyStyleStatement());
    if (set.isEmpty()) complain(fault, styleAdvice());
    readStyle(Row(set, fault, styleAdvice()), rules);
    readRounding(Row(set, QStringLiteral("時間計算方法設定に不備があります。"), styleAdvice()), rules);
    rules.pbleEnableDiff = set.value(QStringLiteral("F_Diff")).yes();
    for (const QuantityFacts& facts : quantities)
        if (facts.shown) rules.*facts.shown = set.value(QString::fromUtf16(facts.field)).yes();
}

void readStaffInfo(Connection& connection, clsWorkTime& rules, const QString& staff) {
    enum Field { EnterDelay, LeaveGain, CloseDay, PaidTotal };
    const auto require = [](bool set) {
        if (!set)
            complain(QStringLiteral("社員設定に不備があります。"),
                     QStringLiteral("管理者に社員設定の確認を依頼して下さい。"));
    };
    Rows row = connection.rows(QStringLiteral("SELECT F_EnterDelay, F_LeaveGain, F_CloseDay, F_PaidTotal "
                                              "FROM M02_StaffInfo WHERE (F_StaffCode = ?);"),
                               {staff});
    require(row.next());
    rules.plngEnterDelay = Seconds(row.integer(EnterDelay));
    rules.plngLeaveGain = Seconds(row.integer(LeaveGain));
    require(!row.isNull(CloseDay));
    rules.plngCloseDay(static_cast<int>(row.integer(CloseDay)));
    require(!row.isNull(PaidTotal));
    rules.psngPaidTotal = static_cast<float>(row.real(PaidTotal));
}

void readWorkTime(Connection& connection, clsWorkTime& rules, const QString& staff) {
    const Reading reading(connection);
    loadDay(connection, dayTables[0], rules, staff, rules.pbleFlexTime);
    loadDay(connection, dayTables[1], rules, staff, false);
    if (rules.plngAmHolidayWork != 0) loadDay(connection, dayTables[2], rules, staff, rules.pbleAmFlexTime);
    if (rules.plngPmHolidayWork != 0) loadDay(connection, dayTables[3], rules, staff, rules.pblePmFlexTime);
}

bool GetWorkStyle(const Context& context, Connection& connection, clsWorkTime& rules) {
    return guarded(context, module, u"GetWorkStyle", false, [&] {
        readCompanyStyle(connection, rules);
        return true;
    });
}

bool GetStaffInfo(const Context& context, Connection& connection, clsWorkTime& rules, const QString& staff) {
    return guarded(context, module, u"GetStaffInfo", false, [&] {
        readStaffInfo(connection, rules, staff);
        return true;
    });
}

bool GetWorkTime(const Context& context, Connection& connection, clsWorkTime& rules, const QString& staff) {
    return guarded(context, module, u"GetWorkTime", false, [&] {
        readWorkTime(connection, rules, staff);
        return true;
    });
}

} // namespace kurbo
