#pragma once

#include "store/connection.h"

#include <functional>

namespace kurbo {

// Keeps other programs out of the file until the connection closes, also those that know nothing of the lock file.
// Throws the fault "Opened" where one is in.
void shutOthersOut(Connection& connection);

// What runs every few milliseconds while an engine works.
using WorkNotice = std::function<void()>;

// While it lives, `notice` runs during the connection's statements. It must not use the connection.
class Noticed final {
  public:
    Noticed(Connection& connection, const WorkNotice& notice);
    ~Noticed();
    Noticed(const Noticed&) = delete;
    Noticed& operator=(const Noticed&) = delete;

  private:
    Connection& connection_;
    std::uint64_t opening_;
    WorkNotice notice_;
};

} // namespace kurbo
