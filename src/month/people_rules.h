#pragma once

#include "engine/work_time.h"
#include "store/readers.h"

#include <QHash>
#include <QStringList>

#include <array>
#include <cstdint>
#include <map>

namespace kurbo {

// The people whose rules are at fault, under what their loader says.
class RuleFaults final {
  public:
    void add(const QString& said, const CodeName& person);
    // One message that names them all and says what to do; empty where there is no fault.
    [[nodiscard]] QString text() const;

  private:
    std::map<QString, QStringList> people_;
};

// Reads the rules of many people. The bands hang on the codes of a person's four kinds of day alone, so those of equal
// codes are read once.
class PeopleRules final {
  public:
    // `style` is the company's work style, loaded. Throws a Fault.
    PeopleRules(Connection& connection, const clsWorkTime& style);

    // A fresh record for the person; nothing where the rules are at fault, which goes to `faults`. Throws a Fault when
    // the file has failed.
    [[nodiscard]] std::optional<clsWorkTime> tryRead(const CodeName& person, RuleFaults& faults);

  private:
    [[nodiscard]] clsWorkTime read(const QString& staff);

    using DayCodes = std::array<std::int64_t, 4>; // weekday, holiday, AM and PM holiday; -1 for Null

    Connection& connection_;
    clsWorkTime style_;
    QHash<QString, DayCodes> codes_;
    std::map<DayCodes, clsWorkTime> known_; // of any one person of those codes
};

} // namespace kurbo
