#pragma once

#include "store/value.h"

#include <memory>
#include <string_view>
#include <vector>

struct sqlite3_stmt;

namespace kurbo {

class Connection;

// A statement kept ready by its connection.
struct Prepared {
    sqlite3_stmt* statement = nullptr;
    std::vector<bool> dates; // by column: holds date and time
    QString table;           // see Translation
    bool busy = false;
};

// Forward-only rows of a SELECT, read straight from the engine. Columns count from 0. A Rows keeps its connection's
// read lock, so it lives for the length of one loop.
class Rows final {
  public:
    ~Rows();
    Rows(Rows&& other) noexcept;
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    Rows& operator=(Rows&&) = delete;

    // Goes to the next row; false behind the last. Throws a Fault.
    [[nodiscard]] bool next();

    [[nodiscard]] bool isNull(int column) const;
    // Null counts as 0.
    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] bool yes(int column) const { return integer(column) != 0; }
    // Null counts as empty.
    [[nodiscard]] QString text(int column) const;
    // The stored bytes (UTF-8), valid until the next row.
    [[nodiscard]] std::string_view bytes(int column) const;
    // Nothing for Null.
    [[nodiscard]] std::optional<Moment> moment(int column) const;
    [[nodiscard]] Value value(int column) const;

    [[nodiscard]] int columns() const;
    [[nodiscard]] QString name(int column) const;
    [[nodiscard]] const QString& table() const { return prepared_->table; }

  private:
    friend class Connection;
    Rows(Connection& connection, Prepared& prepared);

    Connection* connection_;
    Prepared* prepared_;
    std::uint64_t opening_;
};

} // namespace kurbo
