#pragma once

#include "store/connection.h"

#include <QStringList>

#include <array>

namespace kurbo {

// How the company works, as the screen's controls hold it. Times are the texts of their boxes, "__:__" when blank.
struct WorkStyle {
    struct HalfDay {
        bool exists = false;
        int work = 0; // how work on it counts, from 0
        bool flex = false;
        QString standard = QStringLiteral("__:__");
    };
    static constexpr int displays = 16;
    // The entries of `display` of which one is in use, with and without flex working.
    static constexpr std::size_t diff = 0;
    static constexpr std::size_t legalOver = 1;

    bool flex = false;
    QString standard = QStringLiteral("__:__");
    HalfDay am;
    HalfDay pm;
    bool byMonth = false; // rounding
    int roundEnter = 0;   // 0 down, 1 up
    int roundLeave = 0;
    int roundHour = 0;
    int countUnit = 1; // 0 decimal, 1 h:mm
    QString roundUnit; // minutes
    std::array<bool, displays> display{};
};

// What is stored, over what `before` holds where a field is Null; before anything is stored all items are displayed.
// Throws.
[[nodiscard]] WorkStyle readWorkStyle(Connection& connection, const WorkStyle& before = {});
// Throws the complaint of the first rule that fails.
void checkWorkStyle(const WorkStyle& style);
// Why a typed rounding step can't be taken; empty when it can.
[[nodiscard]] QString roundUnitRefusal(const QString& text);
// Stores a checked style; fields that its choices leave without a meaning become Null. Throws.
void writeWorkStyle(Connection& connection, const WorkStyle& style);
// The lines of the listing below its title.
[[nodiscard]] QStringList workStyleListing(const WorkStyle& style);

} // namespace kurbo
