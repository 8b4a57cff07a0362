#pragma once

#include "base/guard.h"
#include "store/connection.h"

#include <array>

namespace kurbo {

// The rights of one M08_Access row, in the order of its fields.
enum class Right {
    ReadMyKurbo,
    ReadOtherKurbo,
    WriteMyPlan,
    WriteOtherPlan,
    WriteMyTime,
    WriteOtherTime,
    WriteMyPaid,
    WriteOtherPaid,
    WriteMySpecial,
    WriteOtherSpecial,
    WriteMyCompens,
    WriteOtherCompens,
    ReadMyGoOut,
    ReadOtherGoOut,
    WriteMyGoOut,
    WriteOtherGoOut,
    WriteMyMonthly,
    WriteOtherMonthly,
    DeleteMyData,
    DeleteOtherData,
    WriteApproval,
};
inline constexpr std::size_t rightCount = 21;

struct AccessRights {
    bool AccessFound = false;
    bool CanPunch = false;
    bool IsAdmin = false;
    std::array<bool, rightCount> rights{};

    [[nodiscard]] bool has(Right right) const { return rights[static_cast<std::size_t>(right)]; }
    void set(Right right, bool yes) { rights[static_cast<std::size_t>(right)] = yes; }
};

// "F_ReadMyKurbo" and its like.
[[nodiscard]] QString fieldOf(Right right);

// Fills `access` with what `staff` may do in `section`, a code or "MySection". True when the rights could be read,
// whatever they say. Without a row only the read rights and the three flags are set; the others stay as they were.
[[nodiscard]] bool GetAccess(const Context& context, Connection& connection, const QString& staff,
                             const QString& section, AccessRights& access);

// Whether the password is the person's; Latin letters in either case. Throws.
[[nodiscard]] bool isPasswordOf(Connection& connection, const QString& staff, const QString& password);

// Whether a staff code is the administrator's, in any case.
[[nodiscard]] bool isAdminCode(const QString& staff);
[[nodiscard]] inline QString adminCode() {
    return QStringLiteral("ADMIN");
}
[[nodiscard]] inline QString mySection() {
    return QStringLiteral("MySection");
}

} // namespace kurbo
