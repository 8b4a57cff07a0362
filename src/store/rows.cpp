#include "store/rows.h"

#include "store/connection.h"
#include "store/engine_fault.h"

#include <sqlite3.h>

#include <utility>

namespace kurbo {

Rows::Rows(Rows&& other) noexcept
    : connection_(other.connection_), prepared_(std::exchange(other.prepared_, nullptr)), opening_(other.opening_) {}

Rows::Rows(Connection& connection, Prepared& prepared)
    : connection_(&connection), prepared_(&prepared), opening_(connection.opening()) {}

Rows::~Rows() {
    if (!prepared_ || opening_ != connection_->opening()) return;
    sqlite3_reset(prepared_->statement);
    sqlite3_clear_bindings(prepared_->statement);
    prepared_->busy = false;
}

bool Rows::next() {
    if (opening_ != connection_->opening()) throw storeFault(StoreError::Moved, connection_->path());
    const int result = sqlite3_step(prepared_->statement);
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) connection_->fail(result);
    return false;
}

bool Rows::isNull(int column) const {
    return sqlite3_column_type(prepared_->statement, column) == SQLITE_NULL;
}

std::int64_t Rows::integer(int column) const {
    return sqlite3_column_int64(prepared_->statement, column);
}

double Rows::real(int column) const {
    return sqlite3_column_double(prepared_->statement, column);
}

QString Rows::text(int column) const {
    const auto stored = bytes(column);
    return QString::fromUtf8(stored.data(), static_cast<qsizetype>(stored.size()));
}

std::string_view Rows::bytes(int column) const {
    // Read as a blob: as a text the engine would copy it, to end it with a zero.
    const auto* text = static_cast<const char*>(sqlite3_column_blob(prepared_->statement, column));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(prepared_->statement, column)))
                : std::string_view();
}

std::optional<Moment> Rows::moment(int column) const {
    return parseIso(bytes(column));
}

Value Rows::value(int column) const {
    switch (sqlite3_column_type(prepared_->statement, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return integer(column);
    case SQLITE_FLOAT:
        return real(column);
    default:
        break;
    }
    if (prepared_->dates[static_cast<std::size_t>(column)])
        if (const auto stored = moment(column)) return *stored;
    return text(column);
}

int Rows::columns() const {
    return sqlite3_column_count(prepared_->statement);
}

QString Rows::name(int column) const {
    return QString::fromUtf8(sqlite3_column_name(prepared_->statement, column));
}

} // namespace kurbo
