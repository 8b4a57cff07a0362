#include "store/file/exclusive.h"

#include "store/engine_fault.h"

#include <sqlite3.h>

namespace kurbo {

// The mode holds the engine's own lock until closing.
void shutOthersOut(Connection& connection) {
    connection.setTimeout(std::chrono::milliseconds{0});
    try {
        connection.engine("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; COMMIT");
    } catch (const Fault& fault) {
        if (fault.number() == static_cast<std::int64_t>(StoreError::Busy)) throw storeFault(StoreError::Opened);
        throw;
    }
}

Noticed::Noticed(Connection& connection, const WorkNotice& notice)
    : connection_(connection), opening_(connection.opening()), notice_(notice) {
    constexpr int stepsBetween = 20000;
    if (!notice_) return;
    const auto told = [](void* self) {
        static_cast<Noticed*>(self)->notice_();
        return 0;
    };
    sqlite3_progress_handler(connection_.handle(), stepsBetween, told, this);
}

Noticed::~Noticed() {
    if (opening_ == connection_.opening()) sqlite3_progress_handler(connection_.handle(), 0, nullptr, nullptr);
}

} // namespace kurbo
