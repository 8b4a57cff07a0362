#pragma once

#include "store/connection.h"
#include "store/engine_fault.h"

namespace kurbo {

// Runs `write` in one transaction. Where another client has taken one of its keys, everything is undone and `write`
// runs anew, `mostAttempts` times in all. The last collision and any other failure are thrown.
template <typename Write>
void writeWithFreshKeys(Connection& connection, int mostAttempts, Write write) {
    for (int attempt = 1;; ++attempt) {
        try {
            Transaction transaction(connection);
            write();
            transaction.commit();
            return;
        } catch (const Fault& fault) {
            if (!isDuplicateKey(fault) || attempt >= mostAttempts) throw;
        }
    }
}

} // namespace kurbo
