
#include "base/system/files.h"
#include "store/engine_fault.h"
#include "store/file/database_file.h"
#include "support/sample_company.h"

#include <sqlite3.h>

#include <chrono>

namespace kurbo::test {
namespace {

class Connections : public SampleCompany {
  protected:
    Connections() { other.open(path, databasePassword()); }

    static std::int64_t faultOf(const std::function<void()>& action) { return refusalOf(action).toLongLong(); }

    Connection other;
    const QString addCorp = u"INSERT INTO C01_Corp (F_Corp) VALUES (?)"_q;
};

} // namespace

TEST_F(Connections, TransactionIsAllOrNothing) {
    for (const bool whole : {false, true}) {
        Transaction outer(connection);
        {
            Transaction inner(connection);
            connection.execute(addCorp, {u"甲"_q});
            inner.commit();
        }
        EXPECT_EQ(count(u"C01_Corp"_q), 2);
        EXPECT_EQ(other.firstValue(u"SELECT Count(*) FROM C01_Corp"_q), Value(1)) << "not yet seen by others";
        if (whole) outer.commit();
    }
    EXPECT_EQ(other.firstValue(u"SELECT Count(*) FROM C01_Corp"_q), Value(2));
}

TEST_F(Connections, AParentIsNeededWhenTheTransactionEnds) {
    EXPECT_EQ(faultOf([&] { addCard(1, *makeDay(2031, 1, 1), u"09:00"_q, QString()); }),
              static_cast<int>(StoreError::MissingParent));
    EXPECT_EQ(count(u"T02_Kurbo"_q), 0);
    Transaction transaction(connection);
    addCard(1, *makeDay(2031, 1, 1), u"09:00"_q, QString());
    insert("T01_Calendar", "DateID, Date", u"'20310101', #2031/01/01#"_q);
    transaction.commit();
    EXPECT_EQ(count(u"T02_Kurbo"_q), 1);
}

TEST_F(Connections, OnlyDatesGoIntoDateFields) {
    for (const QString& bad : {u"C03_Staff SET F_Birth = 'yesterday'"_q, u"M02_StaffInfo SET F_CloseDay = 'abc'"_q})
        EXPECT_EQ(faultOf([&] { connection.execute(u"UPDATE "_q + bad); }), static_cast<int>(StoreError::BadValue));
}

TEST_F(Connections, AWriterWaitsAndGivesUpAtTheTimeout) {
    int notices = 0;
    other.setTimeout(std::chrono::milliseconds{400});
    other.setWaitNotice([&notices] { ++notices; });
    {
        Transaction transaction(connection);
        connection.execute(addCorp, {u"甲"_q});
        EXPECT_EQ(faultOf([&] { other.execute(addCorp, {u"乙"_q}); }), static_cast<int>(StoreError::Busy));
        EXPECT_GE(notices, 2);
        transaction.commit();
    }
}

TEST_F(Connections, AFileThatWasReplacedIsOpenedAnew) {
    copyDatabase(path, desk.file(u"copy.mdb"_q));
    renameOver(desk.file(u"copy.mdb"_q), path);
    EXPECT_EQ(faultOf([&] { connection.execute(addCorp, {u"甲"_q}); }), static_cast<int>(StoreError::Moved));
    EXPECT_FALSE(connection.isOpen());
}

TEST_F(Connections, GuardsLeaveALaterOpeningAlone) {
    {
        Transaction transaction(connection);
        const Rows rows = connection.rows(u"SELECT F_Corp FROM C01_Corp"_q);
        connection.open(path, databasePassword());
        EXPECT_THROW(transaction.commit(), Fault);
    }
    EXPECT_EQ(connection.execute(addCorp, {u"甲"_q}), 1);
}

TEST_F(Connections, TheSameQuestionMayBeAskedWithinItsOwnLoop) {
    const QString statement = u"SELECT F_StaffCode FROM C03_Staff WHERE F_StaffCode < ? ORDER BY F_StaffCode"_q;
    Rows outer = connection.rows(statement, {u"1003"_q});
    int pairs = 0;
    while (outer.next()) {
        Rows inner = connection.rows(statement, {outer.text(0)});
        while (inner.next()) ++pairs;
    }
    EXPECT_EQ(pairs, 1);
    EXPECT_THROW((void)connection.rows(statement), Fault) << "a place without its value";
}

// The cost of an id does not grow with the table.
TEST_F(Connections, TheLastRowOfAnOrderedStatementIsFoundByItsIndex) {
    Transaction transaction(connection);
    for (int id = 1; id <= 3000; ++id)
        addCard(id, *makeDay(2026, 1, 1) + std::chrono::days(id % 365), u"09:00"_q, u"17:00"_q);
    int steps = 0;
    sqlite3_progress_handler(
        connection.handle(), 1, [](void* counter) { return ++*static_cast<int*>(counter), 0; }, &steps);
    EXPECT_EQ(connection.lastValue(u"SELECT F_KurboID FROM T02_Kurbo ORDER BY F_KurboID;"_q), Value(3000));
    EXPECT_LT(steps, 200);
    sqlite3_progress_handler(connection.handle(), 0, nullptr, nullptr);
}

} // namespace kurbo::test
