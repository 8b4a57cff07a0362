#pragma once

#include "engine/work_time.h"
#include "store/connection.h"

#include <QHash>

#include <array>
#include <cstdint>
#include <map>

namespace kurbo {

// Reads the rules of many people. The bands hang on the codes of a person's four kinds of day alone, so those of equal
// codes are read once.
class PeopleRules final {
  public:
    // `style` is the company's work style, loaded. Throws a Fault.
    PeopleRules(Connection& connection, const clsWorkTime& style);

    // A fresh record for the person. Throws what the loaders throw.
    [[nodiscard]] clsWorkTime read(const QString& staff);

  private:
    using DayCodes = std::array<std::int64_t, 4>; // weekday, holiday, AM and PM holiday; -1 for Null

    Connection& connection_;
    clsWorkTime style_;
    QHash<QString, DayCodes> codes_;
    std::map<DayCodes, clsWorkTime> known_; // of any one person of those codes
};

} // namespace kurbo
