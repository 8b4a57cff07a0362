#pragma once

#include "base/day.h"
#include "store/connection.h"

#include <QList>
#include <QString>

#include <cstdint>

namespace kurbo {

struct DemoOptions {
    int people = 12;
    int sections = 3;
    int months = 4;         // whole months of cards before the month of `until`
    std::uint32_t seed = 1; // the same options make the same company
    Day until;              // today in the company
    bool flexible = false;
};

// Fills a fresh database (made by createDatabase) in one transaction. Throws a Fault, and a Complaint for options that
// make no company.
void makeDemoCompany(Connection& connection, const DemoOptions& options);

// Someone to log in as.
struct DemoPerson {
    QString section;
    QString sectionName;
    QString code;
    QString name;
    QString password;
    QString role;
};

// One of each kind that the company has.
[[nodiscard]] QList<DemoPerson> demoPeopleToTry(const DemoOptions& options);

} // namespace kurbo
