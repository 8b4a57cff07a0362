#include "totals/csv/csv_exchange.h"

#include "support/database_disaster.h"
#include "totals/months.h"

namespace kurbo::test {
namespace {

using End = CsvAdded::End;

// Another client writes while a message stands on the screen.
class WritingPrompts final : public Prompts {
  public:
    explicit WritingPrompts(QString path) : path_(std::move(path)) {}
    Answer ask(const Message& /*message*/) override {
        Connection other;
        other.setTimeout(std::chrono::milliseconds{500});
        other.open(path_, databasePassword());
        written += static_cast<int>(other.execute(u"UPDATE C01_Corp SET F_Tel = '1'"_q));
        return Answer::Ok;
    }
    QStringList chooseFiles(const FileQuestion& /*question*/) override { return {}; }
    int written = 0;

  private:
    QString path_;
};

class CsvExchange : public DatabaseDisaster {
  protected:
    CsvAdded add(
        const QList<MonthRecord>& months, OnExisting onExisting = OnExisting::Overwrite,
        const TakeStop& takeStop = [] { return false; }) {
        return addToDatabase(desk.context, connection, months, onExisting, takeStop);
    }
    QList<MonthRecord> saved(const QString& staff = {}) {
        return savedMonths(connection, {u"S01"_q, staff, u"202601"_q, u"202612"_q});
    }
    QString balance(const QString& staff = u"1001"_q) {
        return asked(u"SELECT F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '%1')"_q.arg(staff));
    }

    const MonthRecord march = savedMonth(u"1001"_q, u"202603"_q);
};

} // namespace

TEST_F(CsvExchange, MonthsGoOutPersonByPerson) {
    const MonthRecord february = savedMonth(u"1001"_q, u"202602"_q);
    const MonthRecord clerk = savedMonth(u"1002"_q, u"202602"_q);
    MonthRecord elsewhere = savedMonth(u"1001"_q, u"202601"_q);
    elsewhere.section = u"S02"_q;
    MonthRecord bare = savedMonth(u"1003"_q, u"202612"_q);
    bare.figures = {};
    bare.term.clear();
    ASSERT_EQ(add({clerk, march, bare, savedMonth(u"1004"_q, u"202602"_q), february, elsewhere,
                   savedMonth(u"1001"_q, u"202701"_q), savedMonth(u"9999"_q, u"202602"_q)})
                  .stored,
              8);
    EXPECT_EQ(saved(), QList({february, march, clerk, bare})) << "not the hidden, the strange, the moved, the later";
    elsewhere.section = u"S01"_q;
    EXPECT_EQ(saved(u"1001"_q), QList({elsewhere, february, march}));
    EXPECT_EQ(asked(u"SELECT F_Term FROM T05_Approved WHERE (F_Staff = '1003')"_q), u"-"_q);
}

TEST_F(CsvExchange, TheFileOfAnotherInstallationIsTheSame) {
    MonthRecord approved = savedMonth(u"1002"_q, u"202603"_q);
    approved.personalApproval = true;
    approved.figures[3] = Value();
    ASSERT_EQ(add({march, approved, savedMonth(u"1001"_q, u"202604"_q, -0.5)}).stored, 3);
    const QByteArray file = csvBytes(saved());
    connection.execute(u"DELETE * FROM T05_Approved"_q);
    ASSERT_EQ(add(readCsv(file, {})).stored, 3);
    EXPECT_EQ(csvBytes(saved()), file);
    EXPECT_EQ(asked(u"SELECT F_LegalOver FROM T05_Approved WHERE (F_Staff = '1002')"_q), u"0"_q) << "not Null";
    EXPECT_EQ(asked(u"SELECT F_PersonalApproval FROM T05_Approved WHERE (F_Staff = '1002')"_q), u"-1"_q);
    EXPECT_EQ(balance(), u"-0.5"_q);
}

TEST_F(CsvExchange, WhatExistsIsOverwrittenOrSkipped) {
    ASSERT_EQ(add({march}).stored, 1);
    MonthRecord other = savedMonth(u"1001"_q, u"202603"_q, 7);
    other.section = u"S02"_q;
    other.personalApproval = true;
    other.superiorApproval = false;
    const CsvAdded skipped = add({other, savedMonth(u"1002"_q, u"202603"_q)}, OnExisting::Skip);
    EXPECT_EQ(std::pair(skipped.stored, skipped.skipped), std::pair(1, 1));
    EXPECT_EQ(saved(u"1001"_q), QList{march});
    EXPECT_EQ(balance(), u"18.5"_q);
    EXPECT_EQ(add({other}).stored, 1);
    other.section = u"S01"_q;
    EXPECT_EQ(saved(u"1001"_q), QList{other});
    EXPECT_EQ(asked(u"SELECT F_Section FROM T05_Approved WHERE (F_Staff = '1001')"_q), u"S02"_q);
    EXPECT_EQ(balance(), u"7"_q);
    EXPECT_EQ(count(u"T05_Approved"_q), 2);
}

TEST_F(CsvExchange, TheBalanceFollowsTheNewestMonth) {
    ASSERT_EQ(add({savedMonth(u"1001"_q, u"202512"_q, 12), savedMonth(u"1001"_q, u"202602"_q, 9),
                   savedMonth(u"1001"_q, u"202601"_q, 10), savedMonth(u"9999"_q, u"202601"_q, 1)})
                  .end,
              End::Done);
    EXPECT_EQ(balance(), u"9"_q);
    EXPECT_EQ(balance(u"1002"_q), u"20"_q);
}

TEST_F(CsvExchange, AStopUndoesAllBeforeItAsks) {
    const QList<MonthRecord> months{march, savedMonth(u"1002"_q, u"202603"_q), savedMonth(u"1003"_q, u"202603"_q)};
    int calls = 0;
    const auto stopOnce = [&] { return ++calls == 3; };
    WritingPrompts prompts(path);
    EXPECT_EQ(
        addToDatabase({prompts, desk.clock, desk.paths, desk.progress}, connection, months, OnExisting::Skip, stopOnce)
            .end,
        End::Abandoned);
    EXPECT_EQ(prompts.written, 2) << "nobody waits for the answers to the question and the message";
    EXPECT_EQ(u"%1 %2"_q.arg(count(u"T05_Approved"_q)).arg(balance()), u"0 20"_q);
    calls = 0;
    desk.prompts.expect(u"処理を中止しますか？"_q, Answer::Cancel);
    EXPECT_EQ(add(months, OnExisting::Skip, stopOnce).stored, 3) << "from the beginning again";
    EXPECT_EQ(desk.prompts.last().preset, Answer::Cancel);
}

TEST_F(CsvExchange, AFailureStoresNothing) {
    const QString failed = u"月次集計データをデータベースに登録できませんでした。"_q;
    insert("T05_Approved", "Staff, Year, Month", u"'1002', '2026', '03'"_q);
    connection.engine("CREATE TEMP TRIGGER Refused BEFORE UPDATE ON main.T05_Approved BEGIN SELECT RAISE(ABORT, 'x'); "
                      "END");
    desk.prompts.expect(u"エラー番号："_q).expect(failed);
    EXPECT_EQ(add({march, savedMonth(u"1002"_q, u"202603"_q)}).end, End::Failed);
    EXPECT_EQ(u"%1 %2"_q.arg(count(u"T05_Approved"_q)).arg(balance()), u"1 20"_q);
}

TEST_F(CsvExchange, AFailingDiskStoresAllOrNothing) {
    QList<MonthRecord> months;
    for (int i = 1; i <= 9; ++i) months.append(savedMonth(u"1001"_q, u"20260%1"_q.arg(i)));
    const auto write = [&](const Context& told, Connection& own) {
        return addToDatabase(told, own, months, OnExisting::Skip, [] { return false; }).stored == 9;
    };
    failAll(write,
            {u"SELECT Count(*) FROM T05_Approved"_q, u"SELECT Count(*) FROM M02_StaffInfo WHERE F_PaidTotal = 18.5"_q},
            10, 3);
}

} // namespace kurbo::test
