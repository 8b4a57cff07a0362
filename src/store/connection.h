#pragma once

#include "store/file/lock_file.h"
#include "store/rows.h"

#include <QString>

#include <array>
#include <chrono>
#include <memory>
#include <unordered_map>
#include <vector>

struct sqlite3;

namespace kurbo {

// One database file in use. All failures are thrown as a Fault. Statements are those of the dialect (dialect.h); a
// value takes a placeholder "?" and never becomes part of the text.
class Connection final {
  public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // Opens an existing database of this system; any other file is refused.
    void open(const QString& path, const QString& password);
    // The same for a client that has claimed the database, or for a file that no other client knows.
    void openAlone(const QString& path, const QString& password);
    void close();
    // False also after the disk or the network under the file has failed, so that the next command opens it anew.
    [[nodiscard]] bool isOpen() const { return database_ && !lost_; }
    [[nodiscard]] const QString& path() const { return path_; }
    // True where the file or its folder can't be written; false while no file is open.
    [[nodiscard]] bool readOnly() const;

    [[nodiscard]] Rows rows(const QString& statement, const Values& values = {});
    // From the last row of an ordered SELECT to its first; reads no more rows than are asked for.
    [[nodiscard]] Rows rowsFromLast(const QString& statement, const Values& values = {});
    // With the row's own number before the first column, for writing back.
    [[nodiscard]] Rows rowsWithId(const QString& statement, const Values& values = {});
    // The one table of a plain SELECT; empty for any other statement.
    [[nodiscard]] QString tableOf(const QString& statement);
    // First column of the first row, or of the last; nothing when there is no row.
    [[nodiscard]] std::optional<Value> firstValue(const QString& statement, const Values& values = {});
    [[nodiscard]] std::optional<Value> lastValue(const QString& statement, const Values& values = {});
    [[nodiscard]] bool hasRow(const QString& statement, const Values& values = {});

    // Runs a statement that writes, in a transaction of its own unless one is open; gives the number of rows that it
    // changed itself (rows that cascade are not counted).
    std::int64_t execute(const QString& statement, const Values& values = {});
    // The number that the last added row got.
    [[nodiscard]] std::int64_t lastRowId() const;

    // How long a busy file is waited for (60 seconds), and what runs about ten times a second meanwhile.
    void setTimeout(std::chrono::milliseconds timeout) { timeout_ = timeout; }
    void setWaitNotice(WaitNotice notice) { notice_ = std::move(notice); }

    // Runs an engine statement that the dialect doesn't know (PRAGMA, VACUUM).
    void engine(const QByteArray& sql);
    [[nodiscard]] sqlite3* handle() const { return database_; }
    // Rises with every closing: what belongs to an earlier opening leaves the engine alone.
    [[nodiscard]] std::uint64_t opening() const { return opening_; }
    // Throws the fault behind an engine's result code.
    [[noreturn]] void fail(int result);

  private:
    friend class Turn;
    friend class Transaction;
    friend class Reading;

    enum class Variant { Plain, FromLast, WithId };
    // The statements around all others, kept ready.
    enum class Frame { Begin, BeginWriting, Commit };
    // Statements of one wording; more than one where the same question is asked within its own loop.
    using Shelf = std::vector<std::unique_ptr<Prepared>>;

    [[nodiscard]] Deadline deadline() const { return std::chrono::steady_clock::now() + timeout_; }
    void openFile(const QString& path, const QString& password, bool alone);
    void openEngine();
    void checkIdentity(const QString& password);
    void beginTurn();
    void endTurn();
    int run(Frame frame);
    void runOrFail(Frame frame);
    Prepared& prepare(Variant variant, const QString& statement);
    static void forgetIdle(std::unordered_map<QString, Shelf>& shelves);
    Rows bound(Prepared& prepared, const Values& values);
    static int onBusy(void* self, int count);

    sqlite3* database_ = nullptr;
    QString path_;
    LockFile lock_;
    std::uint64_t opening_ = 0;
    bool alone_ = false;
    bool openingNow_ = false;
    bool lost_ = false;
    int turns_ = 0;
    bool outOfTurn_ = false;
    int transactions_ = 0;
    std::chrono::milliseconds timeout_{std::chrono::seconds{60}};
    Deadline busyUntil_;
    Deadline nextNotice_;
    WaitNotice notice_;
    std::array<std::unordered_map<QString, Shelf>, 3> shelves_;
    std::array<sqlite3_stmt*, 3> frames_{};
};

// This connection's turn among the writers of all clients: the questions asked during a turn and the writes that follow
// from them see no other writer's work in between. Turns within a turn are part of it. Held for moments only, never
// while a person is asked.
class Turn final {
  public:
    explicit Turn(Connection& connection);
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

  private:
    Connection& connection_;
    std::uint64_t opening_;
};

// All or nothing: without commit() everything since the beginning is undone. Inside another transaction it is part of
// that one.
class Transaction final {
  public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

  private:
    Connection& connection_;
    Turn turn_;
    std::uint64_t opening_;
    bool open_ = true;
};

// Several questions that see one state of the file, and pay for one lock. Inside another one it is part of that.
class Reading final {
  public:
    explicit Reading(Connection& connection);
    ~Reading();
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

  private:
    Connection& connection_;
    std::uint64_t opening_;
    bool own_;
};

} // namespace kurbo
