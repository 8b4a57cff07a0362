#include "store/connection.h"

#include "store/dialect/dialect.h"
#include "store/dialect/sql_functions.h"
#include "store/engine_fault.h"
#include "store/schema.h"
#include "store/text_order.h"

#include <sqlite3.h>

#include <QFile>
#include <QRandomGenerator>
#include <QScopedValueRollback>

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <thread>

namespace kurbo {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds betweenNotices{100};

void bind(sqlite3_stmt* statement, int index, const Value& value) {
    const auto bindText = [&](const char* bytes, qsizetype size) {
        sqlite3_bind_text64(statement, index, bytes, static_cast<sqlite3_uint64>(size), SQLITE_TRANSIENT, SQLITE_UTF8);
    };
    const auto& data = value.data();
    if (const auto* number = std::get_if<std::int64_t>(&data)) {
        sqlite3_bind_int64(statement, index, *number);
    } else if (const auto* real = std::get_if<double>(&data)) {
        sqlite3_bind_double(statement, index, *real);
    } else if (const auto* text = std::get_if<QString>(&data)) {
        const QByteArray bytes = text->toUtf8();
        bindText(bytes.constData(), bytes.size());
    } else if (const auto* moment = std::get_if<Moment>(&data)) {
        const std::string stored = isoText(*moment);
        bindText(stored.data(), static_cast<qsizetype>(stored.size()));
    } else {
        sqlite3_bind_null(statement, index);
    }
}

std::vector<bool> dateColumns(sqlite3_stmt* statement) {
    std::vector<bool> dates(static_cast<std::size_t>(sqlite3_column_count(statement)));
    for (std::size_t i = 0; i < dates.size(); ++i) {
        const char* type = sqlite3_column_decltype(statement, static_cast<int>(i));
        dates[i] = type && std::string_view(type) == dateTimeType;
    }
    return dates;
}

// The engine reports an empty or missing file only later, and in other words.
void checkFile(const QString& path) {
    struct stat file {};
    if (::stat(QFile::encodeName(path).constData(), &file) != 0) throw missingFault(errno, path);
    if (!S_ISREG(file.st_mode) || file.st_size == 0) throw storeFault(StoreError::NotMdb, path);
}

} // namespace

Connection::Connection() = default;

Connection::~Connection() {
    close();
}

void Connection::open(const QString& path, const QString& password) {
    openFile(path, password, false);
}

void Connection::openAlone(const QString& path, const QString& password) {
    openFile(path, password, true);
}

void Connection::openFile(const QString& path, const QString& password, bool alone) {
    // What runs during a wait may try to open this very connection.
    if (openingNow_) throw storeFault(StoreError::Busy);
    const QScopedValueRollback now(openingNow_, true);
    close();
    checkFile(path);
    path_ = path;
    alone_ = alone;
    try {
        if (!alone) (void)lock_.join(path, deadline(), notice_);
        openEngine();
        checkIdentity(password);
    } catch (...) {
        close();
        throw;
    }
}

void Connection::openEngine() {
    const int result = sqlite3_open_v2(QFile::encodeName(path_).constData(), &database_,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    if (result != SQLITE_OK) fail(result);
    sqlite3_busy_handler(database_, onBusy, this);
    sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(database_, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    installTextOrder(database_);
    installFunctions(database_);
    engine("PRAGMA foreign_keys=ON; PRAGMA synchronous=FULL; PRAGMA temp_store=MEMORY; PRAGMA cell_size_check=ON;"
           "PRAGMA cache_size=-16000;");
}

void Connection::checkIdentity(const QString& password) {
    const Reading reading(*this);
    const auto pragma = [this](const char* sql) {
        sqlite3_stmt* statement = nullptr;
        int result = sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr);
        if (result == SQLITE_OK) result = sqlite3_step(statement);
        const int value = result == SQLITE_ROW ? sqlite3_column_int(statement, 0) : 0;
        sqlite3_finalize(statement);
        if (result != SQLITE_ROW) fail(result);
        return value;
    };
    if (pragma("PRAGMA application_id") != applicationId) throw storeFault(StoreError::NotMdb, path_);
    if (pragma("PRAGMA user_version") > schemaVersion) throw storeFault(StoreError::Newer, path_);
    const auto seal = firstValue(QStringLiteral("SELECT F_Seal FROM S_Seal"));
    if (!seal || !sealMatches(seal->text(), password)) throw storeFault(StoreError::WrongPassword, path_);
}

void Connection::close() {
    for (auto& shelves : shelves_) {
        for (const auto& [statement, shelf] : shelves)
            for (const auto& prepared : shelf) sqlite3_finalize(prepared->statement);
        shelves.clear();
    }
    for (sqlite3_stmt*& frame : frames_) sqlite3_finalize(std::exchange(frame, nullptr));
    sqlite3_close_v2(std::exchange(database_, nullptr));
    lock_.leave();
    ++opening_;
    lost_ = false;
    outOfTurn_ = false;
    turns_ = 0;
    transactions_ = 0;
}

bool Connection::readOnly() const {
    return database_ && ((!alone_ && !lock_.joined()) || sqlite3_db_readonly(database_, "main") == 1);
}

void Connection::fail(int result) {
    const Fault fault = engineFault(database_, result, path_);
    lost_ = lost_ || (result & 0xff) == SQLITE_IOERR || (result & 0xff) == SQLITE_CANTOPEN ||
            result == SQLITE_READONLY_DBMOVED;
    throw fault;
}

void Connection::engine(const QByteArray& sql) {
    if (!database_) throw storeFault(StoreError::NoFile, path_);
    const int result = sqlite3_exec(database_, sql.constData(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK) fail(result);
}

int Connection::run(Frame frame) {
    constexpr std::array texts{"BEGIN", "BEGIN IMMEDIATE", "COMMIT"};
    if (!database_) throw storeFault(StoreError::NoFile, path_);
    const auto index = static_cast<std::size_t>(frame);
    sqlite3_stmt*& statement = frames_[index];
    if (!statement) {
        const int result =
            sqlite3_prepare_v3(database_, texts[index], -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
        if (result != SQLITE_OK) return result;
    }
    sqlite3_step(statement);
    return sqlite3_reset(statement);
}

void Connection::runOrFail(Frame frame) {
    const int result = run(frame);
    if (result != SQLITE_OK) fail(result);
}

int Connection::onBusy(void* self, int count) {
    auto& connection = *static_cast<Connection*>(self);
    const auto now = steady_clock::now();
    if (count == 0) {
        connection.busyUntil_ = connection.deadline();
        connection.nextNotice_ = now + betweenNotices;
    }
    if (connection.outOfTurn_ || now >= connection.busyUntil_) return 0;
    if (connection.notice_ && now >= connection.nextNotice_) {
        connection.notice_();
        connection.nextNotice_ = now + betweenNotices;
    }
    // Pauses are short and of random length, so that waiting clients do not all try at one moment.
    const int longest = std::min(500 + count * 250, 5000);
    std::this_thread::sleep_for(std::chrono::microseconds(QRandomGenerator::global()->bounded(250, longest)));
    return 1;
}

// A script of many statements that differ only in the values written into them must not fill the memory.
void Connection::forgetIdle(std::unordered_map<QString, Shelf>& shelves) {
    std::erase_if(shelves, [](const auto& entry) {
        const Shelf& shelf = entry.second;
        if (std::ranges::any_of(shelf, [](const auto& prepared) { return prepared->busy; })) return false;
        for (const auto& prepared : shelf) sqlite3_finalize(prepared->statement);
        return true;
    });
}

Prepared& Connection::prepare(Variant variant, const QString& statement) {
    constexpr std::size_t mostKept = 300;
    if (!database_) throw storeFault(StoreError::NoFile, path_);
    auto& shelves = shelves_[static_cast<std::size_t>(variant)];
    if (shelves.size() >= mostKept) forgetIdle(shelves);
    Shelf& shelf = shelves[statement];
    for (const auto& prepared : shelf)
        if (!prepared->busy) return *prepared;
    const Translation translation = variant == Variant::FromLast ? translatedFromLast(statement)
                                    : variant == Variant::WithId ? translatedWithRowId(statement)
                                                                 : translated(statement);
    auto prepared = std::make_unique<Prepared>();
    const int result = sqlite3_prepare_v3(database_, translation.sql.constData(), -1, SQLITE_PREPARE_PERSISTENT,
                                          &prepared->statement, nullptr);
    if (result != SQLITE_OK) fail(result);
    prepared->dates = dateColumns(prepared->statement);
    prepared->table = translation.table;
    return *shelf.emplace_back(std::move(prepared));
}

Rows Connection::bound(Prepared& prepared, const Values& values) {
    prepared.busy = true;
    Rows rows(*this, prepared);
    if (sqlite3_bind_parameter_count(prepared.statement) != values.size()) throw syntaxFault({});
    for (qsizetype i = 0; i < values.size(); ++i) bind(prepared.statement, static_cast<int>(i) + 1, values[i]);
    return rows;
}

Rows Connection::rows(const QString& statement, const Values& values) {
    return bound(prepare(Variant::Plain, statement), values);
}

Rows Connection::rowsFromLast(const QString& statement, const Values& values) {
    return bound(prepare(Variant::FromLast, statement), values);
}

Rows Connection::rowsWithId(const QString& statement, const Values& values) {
    return bound(prepare(Variant::WithId, statement), values);
}

QString Connection::tableOf(const QString& statement) {
    return prepare(Variant::Plain, statement).table;
}

std::optional<Value> Connection::firstValue(const QString& statement, const Values& values) {
    Rows found = rows(statement, values);
    return found.next() ? std::optional(found.value(0)) : std::nullopt;
}

std::optional<Value> Connection::lastValue(const QString& statement, const Values& values) {
    Rows found = rowsFromLast(statement, values);
    return found.next() ? std::optional(found.value(0)) : std::nullopt;
}

bool Connection::hasRow(const QString& statement, const Values& values) {
    return rows(statement, values).next();
}

std::int64_t Connection::execute(const QString& statement, const Values& values) {
    Transaction transaction(*this);
    {
        Rows running = rows(statement, values);
        while (running.next()) {
        }
    }
    const std::int64_t changed = sqlite3_changes64(database_);
    transaction.commit();
    return changed;
}

std::int64_t Connection::lastRowId() const {
    return sqlite3_last_insert_rowid(database_);
}

void Connection::beginTurn() {
    // The queue only keeps the order, and the engine's lock decides: where a client ahead hangs, this one goes on after
    // the timeout.
    if (turns_++ == 0) outOfTurn_ = !lock_.waitTurn(deadline(), notice_);
}

void Connection::endTurn() {
    if (turns_ == 0 || --turns_ > 0) return;
    outOfTurn_ = false;
    lock_.endTurn();
}

Turn::Turn(Connection& connection) : connection_(connection), opening_(connection.opening_) {
    connection_.beginTurn();
}

Turn::~Turn() {
    if (opening_ == connection_.opening_) connection_.endTurn();
}

Transaction::Transaction(Connection& connection)
    : connection_(connection), turn_(connection), opening_(connection.opening_) {
    if (connection_.transactions_ == 0) {
        if (connection_.readOnly()) throw storeFault(StoreError::ReadOnly, connection_.path());
        connection_.runOrFail(Connection::Frame::BeginWriting);
    }
    ++connection_.transactions_;
}

Transaction::~Transaction() {
    if (!open_ || opening_ != connection_.opening_) return;
    --connection_.transactions_;
    // The engine may have rolled back by itself; a failure here has been reported by its cause.
    if (connection_.transactions_ == 0) sqlite3_exec(connection_.database_, "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() {
    if (opening_ != connection_.opening_) throw storeFault(StoreError::Moved, connection_.path());
    if (connection_.transactions_ == 1) connection_.runOrFail(Connection::Frame::Commit);
    --connection_.transactions_;
    open_ = false;
}

Reading::Reading(Connection& connection)
    : connection_(connection),
      opening_(connection.opening_),
      own_(!connection.database_ || sqlite3_get_autocommit(connection.database_) != 0) {
    if (own_) connection_.runOrFail(Connection::Frame::Begin);
}

Reading::~Reading() {
    if (own_ && opening_ == connection_.opening_) connection_.run(Connection::Frame::Commit);
}

} // namespace kurbo
