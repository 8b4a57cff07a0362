#pragma once

#include "demo/demo_names.h"
#include "demo/demo_styles.h"
#include "demo/dice.h"
#include "store/connection.h"

#include <vector>

namespace kurbo {

struct DemoSection {
    QString code;
    QString name;
};

// The numbers are the codes of the access rights.
enum class Role { None = 0, Ordinary = 1, Superior = 2, Clerk = 3 };

struct Person {
    QString code;
    QString name;
    QString kana;
    std::size_t section = 0;
    bool woman = false;
    Day birth;
    Day join;
    std::optional<Day> retire;
    Role role = Role::Ordinary;
    Shift shift = Shift::Days;
    bool sales = false; // out of the house by day
    int closeDay = 31;
    int zeal = 0;       // 0 to 3, works ever longer
    int paidHalves = 0; // paid leave left, in half days

    [[nodiscard]] bool employedOn(Day day) const { return join <= day && (!retire || day <= *retire); }
    [[nodiscard]] Adjust adjust() const { return role == Role::Superior ? Adjust::Unlimited : Adjust::Agreement; }
};

struct DemoStaff {
    std::vector<DemoSection> sections;
    std::vector<Person> people;
};

// As many as there are names for.
inline constexpr int mostPeople = nameCount;
inline constexpr int mostSections = sectionNameCount;

struct StaffSize {
    int people;
    int sections;
    Day until;
    Day retirement; // last day of the one who has left
};

[[nodiscard]] DemoStaff makeStaff(const StaffSize& size, Dice& dice);
[[nodiscard]] QString passwordOf(const Person& person);

// The company, its sections and the people's master records.
void writeStaff(Connection& connection, const DemoStaff& staff, Dice& dice);
// The people's settings; `paidHalves` must stand.
void writeStaffInfo(Connection& connection, const DemoStaff& staff, Dice& dice);

} // namespace kurbo
