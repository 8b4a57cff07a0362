#include "store/record_set.h"

#include "store/engine_fault.h"
#include "store/file/database_file.h"
#include "support/sample_company.h"

namespace kurbo::test {
namespace {

class Records : public SampleCompany {
  protected:
    Records() {
        for (int day = 1; day <= 5; ++day)
            addCard(day, *makeDay(2026, 4, day), u"08:55"_q, day < 5 ? u"17:40"_q : u""_q);
    }
    const QString cards = u"SELECT * FROM T02_Kurbo WHERE (F_User = '1001') ORDER BY F_DateID;"_q;
};

} // namespace

TEST_F(Records, MoveFindAndFilter) {
    RecordSet set(connection, cards);
    EXPECT_EQ(set.size(), 5);
    EXPECT_EQ(set.value(u"f_kurboid"_q), Value(1));
    EXPECT_TRUE(set.moveLast());
    EXPECT_TRUE(set.value(u"F_Leave"_q).isNull());
    EXPECT_TRUE(set.movePrevious());
    EXPECT_EQ(set.value(u"F_Leave"_q), Value(at(*makeDay(2026, 4, 4), 17, 40)));
    EXPECT_TRUE(set.find(u"F_DateID = '20260403'"_q));
    EXPECT_EQ(set.value(u"F_KurboID"_q), Value(3));
    EXPECT_TRUE(set.find(u"F_DateID = 20260402"_q)) << "a number is found in a text field";
    EXPECT_TRUE(set.find(u"F_Enter >= #2026/04/04 08:55# AND F_KurboID <> 4"_q));
    EXPECT_EQ(set.value(u"F_KurboID"_q), Value(5));
    EXPECT_FALSE(set.find(u"F_DateID = ?"_q, {u"20260499"_q}));
    EXPECT_FALSE(set.atRow());
    EXPECT_THROW((void)set.value(u"F_KurboID"_q), Fault);
    EXPECT_FALSE(set.filter(u"F_Leave > #2026/04/04 17:40#"_q)) << "Null meets no condition";
    EXPECT_TRUE(set.filter(u"F_KurboID > 2 AND F_KurboID <= 4"_q));
    EXPECT_EQ(set.size(), 2);
    set.clearFilter();
    EXPECT_EQ(set.size(), 5);
    EXPECT_TRUE(set.moveFirst());
    EXPECT_FALSE(set.movePrevious());
    EXPECT_TRUE(set.moveNext());
    EXPECT_EQ(set.value(u"F_KurboID"_q), Value(1)) << "from before the first row to the first";
    EXPECT_THROW((void)set.value(u"F_Nothing"_q), Fault);
    EXPECT_THROW(set.find(u"F_KurboID"_q), Fault);
    EXPECT_THROW(set.find(u"F_KurboID = 1 OR F_KurboID = 2"_q), Fault);
}

TEST_F(Records, BatchIsSentWholeOrNotAtAll) {
    RecordSet set(connection, cards);
    set.set(u"F_Plan"_q, u"It's \"出張\" 100%"_q);
    set.moveLast();
    set.set(u"F_Leave"_q, at(*makeDay(2026, 4, 6), 1, 30));
    set.addNew();
    set.set(u"F_KurboID"_q, 3);
    set.set(u"F_DateID"_q, u"20260410"_q);
    set.set(u"F_User"_q, u"1001"_q);
    EXPECT_EQ(refusalOf([&] { set.updateBatch(); }), u"3022"_q) << "the key is taken";
    EXPECT_EQ(asked(u"SELECT F_Plan FROM T02_Kurbo WHERE F_KurboID = 1"_q), u"-"_q);
    set.set(u"F_KurboID"_q, 6);
    set.updateBatch();
    EXPECT_EQ(asked(u"SELECT F_Plan FROM T02_Kurbo WHERE F_KurboID = 1"_q), u"It's \"出張\" 100%"_q);
    EXPECT_EQ(asked(u"SELECT F_Leave FROM T02_Kurbo WHERE F_KurboID = 5"_q), u"2026/04/06 01:30:00"_q);
    EXPECT_EQ(asked(u"SELECT F_Plan FROM T02_Kurbo WHERE F_KurboID = 6"_q), u"-"_q);
    set.set(u"F_Plan"_q, Value());
    set.updateBatch();
    EXPECT_EQ(count(u"T02_Kurbo"_q), 6) << "an added row is added once";
}

TEST_F(Records, ARowThatAnotherClientDeletedIsNotWritten) {
    insert("T05_Approved", "Staff, Year, Month, Work", u"'1001', '2026', '03', 100"_q);
    RecordSet mine(connection, u"SELECT F_Staff, F_Year, F_Month, F_Work FROM T05_Approved;"_q);
    connection.execute(u"DELETE * FROM T05_Approved;"_q);
    insert("T05_Approved", "Staff, Year, Month, Work",
           u"'1002', '2026', '03', 100"_q); // takes the deleted row's number
    mine.set(u"F_Work"_q, 999);
    EXPECT_THROW(mine.updateBatch(), Fault);
    EXPECT_EQ(asked(u"SELECT F_Work FROM T05_Approved"_q), u"100"_q);
}

TEST_F(Records, JoinedRowsAreForReading) {
    RecordSet set(connection, u"SELECT T02_Kurbo.F_Leave FROM T01_Calendar INNER JOIN T02_Kurbo "
                              "ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID"_q);
    EXPECT_EQ(set.size(), 5);
    set.set(u"F_Leave"_q, Value());
    EXPECT_THROW(set.updateBatch(), Fault);
}

} // namespace kurbo::test
