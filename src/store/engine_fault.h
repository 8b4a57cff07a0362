#pragma once

#include "base/failure.h"

struct sqlite3;

namespace kurbo {

// Numbers of the store's own faults.
enum class StoreError : std::int64_t {
    WrongPassword = 3031,
    DuplicateKey = 3022,
    NoFile = 3024,
    ReadOnly = 3027,
    NoDrive = 3043,
    NoPath = 3044,
    Moved = 3045,
    Damaged = 3049,
    NoAccess = 3051,
    Syntax = 3075,
    NoTable = 3078,
    DiskFull = 3183,
    RowGone = 3197,
    MissingParent = 3201,
    Busy = 3260,
    BadValue = 3317,
    NotMdb = 3343,
    Newer = 3344,
    Opened = 3356,
    Other = 3000,
};

// The engine's text for two rows of one key. Writers recognise a collision by its first 51 characters.
[[nodiscard]] QString duplicateKeyText();
[[nodiscard]] bool isDuplicateKey(const Fault& fault);

[[nodiscard]] Fault storeFault(StoreError number, const QString& detail = {});
[[nodiscard]] Fault syntaxFault(QStringView statement);
// What went wrong last on `database`, `result` being the engine's result code.
[[nodiscard]] Fault engineFault(sqlite3* database, int result, const QString& path);
// Why a file can't be opened: it, its folder or its drive is not there. `systemError` is the errno of looking at it.
[[nodiscard]] Fault missingFault(int systemError, const QString& path);

} // namespace kurbo
