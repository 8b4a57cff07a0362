#pragma once

#include "base/progress.h"

#include <QString>

namespace kurbo {

// The progress of the move: it jumps from mark to mark, and creeps towards the next one while the engine works.
class MoveBar final {
  public:
    static constexpr int maximum = 100;

    // The larger the file, the more slowly it creeps.
    MoveBar(Progress& progress, std::int64_t bytes);
    void reach(int mark, int next);
    void creep();

  private:
    const Shown shown_;
    Progress& progress_;
    std::int64_t slowness_;
    std::int64_t notices_ = 0;
    int mark_ = 0;
    int next_ = 0;
};

} // namespace kurbo
