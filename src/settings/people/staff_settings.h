#pragma once

#include "engine/work_time.h"
#include "store/readers.h"

#include <QStringList>

#include <array>

namespace kurbo {

// What a person works by: one row of M02_StaffInfo, as the screen's controls hold it. Everything that touches the store
// throws.
struct StaffSettings {
    enum Field { Password, CloseDay, Paid, EnterDelay, LeaveGain };
    enum Choice { Weekday, Holiday, AmHoliday, PmHoliday, Adjust, Access };
    static constexpr std::size_t fields = 5;
    static constexpr std::size_t choices = 6;

    std::array<QString, fields> texts;
    std::array<QString, choices> codes; // empty for none
};

// Whether the company uses what is chosen: there may be no half holidays.
[[nodiscard]] bool isUsed(StaffSettings::Choice choice, const clsWorkTime& style);
// The displayed people of a section, or all of them without one.
[[nodiscard]] QList<CodeName> settingStaff(Connection& connection, const QString& section);
// What can be chosen.
[[nodiscard]] QList<CodeName> settingChoices(Connection& connection, StaffSettings::Choice choice);

// Blank for a person without a row.
[[nodiscard]] StaffSettings ShowStaff(Connection& connection, const QString& staff, const clsWorkTime& style);
// Why a typed text, trimmed and not empty, can't be taken; empty when it can.
[[nodiscard]] QString staffFieldRefusal(StaffSettings::Field field, const QString& text);
// Throws the complaint of the first rule that fails.
void checkStaffSettings(const StaffSettings& settings, const clsWorkTime& style);
// Stores checked settings; a half holiday that the company doesn't have keeps its old code. Complains when the person
// or a choice has been deleted meanwhile.
void UpdateStaff(Connection& connection, const QString& staff, const StaffSettings& settings, const clsWorkTime& style);
void DeleteStaff(Connection& connection, const QString& staff);

// A field's text after its up or down button.
[[nodiscard]] QString stepped(StaffSettings::Field field, const QString& text, bool up);

// The lines of the listing below its title. `settings` holds the names shown in place of the codes; the password is
// given as stars.
[[nodiscard]] QStringList staffListing(const CodeName& section, const CodeName& staff, const StaffSettings& settings);

} // namespace kurbo
