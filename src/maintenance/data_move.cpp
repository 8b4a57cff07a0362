#include "maintenance/data_move.h"

#include "base/system/files.h"
#include "maintenance/days_moved.h"
#include "maintenance/move_bar.h"
#include "store/file/database_copy.h"
#include "store/file/database_file.h"

#include <QFile>
#include <QFileInfo>

#include <optional>

namespace kurbo {
namespace {

// A connection that is closed for a time.
class ClosedMeanwhile final {
  public:
    explicit ClosedMeanwhile(Connection& connection)
        : connection_(connection), path_(connection.isOpen() ? connection.path() : QString()) {
        connection_.close();
    }
    // Where it can't be opened again, the next command tries, and says why not.
    ~ClosedMeanwhile() {
        if (path_.isEmpty()) return;
        try {
            connection_.open(path_, databasePassword());
        } catch (const Fault&) {
            connection_.close();
        }
    }
    ClosedMeanwhile(const ClosedMeanwhile&) = delete;
    ClosedMeanwhile& operator=(const ClosedMeanwhile&) = delete;

  private:
    Connection& connection_;
    const QString path_;
};

[[nodiscard]] Complaint inUse() {
    return Complaint(lines(QStringLiteral("他のユーザーがデータベースに接続しています。"),
                           QStringLiteral("ユーザーが接続していない時に再度実行して下さい。")));
}

[[nodiscard]] Complaint unreachable(const QString& database, const char16_t* problem, const char16_t* advice) {
    return Complaint(lines(QStringLiteral("データベースファイル ") + database + QString::fromUtf16(problem),
                           QString::fromUtf16(advice)));
}

// Throws where the compaction's result has a message.
void explain(OptimizeResult result, const QString& database) {
    // A lock file that nobody holds was left by a crash.
    if (result == OptimizeResult::Opened || (result == OptimizeResult::ExistLdb && LockFile::isHeld(database)))
        throw inUse();
    if (result == OptimizeResult::NoFile || result == OptimizeResult::NoPath)
        throw unreachable(database, u" が見つかりません。", u"データベースファイルの保存場所を確認して下さい。");
    if (result == OptimizeResult::NoDrive)
        throw unreachable(database, u" が置かれたドライブの準備ができていません。",
                          u"データベースファイルが置かれたドライブの状態を確認して下さい。");
}

// The destination while it is made: a file of its own beside its place, gone again unless it is finished.
class Destination final {
  public:
    explicit Destination(const QString& path) : path_(realPath(path)) {
        LockFile::removeStale(path_);
        if (!lock_.claim(path_))
            throw Complaint(lines(QStringLiteral("移動先DBに他のユーザーが接続しています。"),
                                  QStringLiteral("ユーザーが接続していない時に再度実行して下さい。")));
    }
    ~Destination() {
        if (fresh_) QFile::remove(fresh_->path() + QStringLiteral("-journal"));
    }
    Destination(const Destination&) = delete;
    Destination& operator=(const Destination&) = delete;

    void fill(Connection& source, const WorkNotice& notice) {
        fresh_.emplace(FreshFile::beside(path_));
        writeCopy(source, *fresh_, notice);
    }
    // Deletes what stays in the database, and looks the file over.
    void trim(const MoveOrder& order, const WorkNotice& notice) {
        Connection copy;
        copy.openAlone(fresh_->path(), databasePassword());
        // Nobody needs a file that isn't finished.
        copy.engine("PRAGMA locking_mode=EXCLUSIVE; PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF;");
        const Noticed noticed(copy, notice);
        BulkChange change(copy, movedTables());
        DeleteCalendarRange(change, *order.startDay, *order.endDay, true);
        DeleteApprovedRange(change, order.withMonths ? *order.startMonth : *order.startDay,
                            order.withMonths ? *order.endMonth : *order.endDay, true);
        change.commit();
        // The compaction has just checked the values, so that here only the structure of the file is looked at.
        copy.engine("PRAGMA ignore_check_constraints=ON");
        requireWhole(copy);
    }
    // `model` gives it its group and permissions.
    void finish(const QString& model) {
        (void)fresh_->shareLike(model);
        // What stood there may hold days that are nowhere else.
        putInPlace(*fresh_, path_, databasePassword(), OldFile::Kept);
    }

  private:
    const QString path_;
    std::optional<FreshFile> fresh_;
    LockFile lock_;
};

void removeMoved(Connection& database, const MoveOrder& order, const WorkNotice& notice) {
    const Noticed noticed(database, notice);
    BulkChange change(database, movedTables());
    DeleteCalendarRange(change, *order.startDay, *order.endDay, false);
    if (order.withMonths) DeleteApprovedRange(change, *order.startMonth, *order.endMonth, false);
    RenumberKurbo(change);
    change.commit();
}

// A second move of the same days would put an empty file in the place of the first one's.
void requireSomething(Connection& database, const MoveOrder& order) {
    const auto inRange = [&](const QString& statement, Day start, Day end, int length) {
        return database.hasRow(statement, {dateId(start).left(length), dateId(end).left(length)});
    };
    constexpr int day = 8;
    constexpr int month = 6;
    if (inRange(QStringLiteral("SELECT F_DateID FROM T01_Calendar WHERE (F_DateID BETWEEN ? AND ?);"), *order.startDay,
                *order.endDay, day) ||
        (order.withMonths &&
         inRange(QStringLiteral("SELECT F_Year FROM T05_Approved WHERE (F_Year & F_Month BETWEEN ? AND ?);"),
                 *order.startMonth, *order.endMonth, month)))
        return;
    throw Complaint(QStringLiteral("移動するデータがありません。"));
}

QString questionOf(const MoveOrder& order, const QString& running) {
    constexpr int monthLength = 7;
    const auto range = [](const char16_t* word, const QString& from, const QString& to) {
        return QString::fromUtf16(word) + from + u'～' + to;
    };
    QString text = lines(QStringLiteral("データの移動を行います。移動したデータは元に戻せません。"),
                         range(u"期間：", slashDate(*order.startDay), slashDate(*order.endDay)));
    if (order.withMonths)
        text = lines(text, range(u"月次集計データ：", slashDate(*order.startMonth).left(monthLength),
                                 slashDate(*order.endMonth).left(monthLength)));
    text = lines(text, QStringLiteral("移動先：") + order.destination.trimmed());
    if (!running.isEmpty()) text = lines(text, QString(), running);
    return text;
}

} // namespace

OptimizeResult carryOut(const Context& context, Connection& shared, const QString& database, const MoveOrder& order) {
    MoveBar bar(context.progress, QFileInfo(database).size());
    const auto notice = [&bar] { bar.creep(); };
    bar.reach(10, 40);
    Destination destination(order.destination.trimmed());
    const ClosedMeanwhile closed(shared);
    LockFile lock;
    const OptimizeResult result = OptimizeDB(context, database, databasePassword(), lock, notice);
    if (result != OptimizeResult::OK) {
        explain(result, database);
        return result;
    }
    Connection source;
    source.openAlone(database, databasePassword());
    shutOthersOut(source);
    requireSomething(source, order);
    bar.reach(40, 60);
    destination.fill(source, notice);
    bar.reach(60, 80);
    destination.trim(order, notice);
    destination.finish(database);
    bar.reach(80, 100);
    removeMoved(source, order, notice);
    bar.reach(100, 100);
    return result;
}

bool moveData(const Context& context, Connection& shared, const QString& database, const MoveOrder& order) {
    return guarded(context, u"frmMaintainance", u"cmdExec_Click", false, [&] {
        checkMove(context, database, order);
        const QString question = questionOf(order, runningDaysText(shared, order, context.clock.today()));
        if (!context.prompts.sure(question, Answer::Cancel) ||
            carryOut(context, shared, database, order) != OptimizeResult::OK)
            return false;
        context.prompts.inform(QStringLiteral("データ移動が完了しました。"));
        return true;
    });
}

} // namespace kurbo
