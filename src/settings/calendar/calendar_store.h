#pragma once

#include "base/progress.h"
#include "settings/calendar/calendar_sheet.h"
#include "store/connection.h"

namespace kurbo {

// All of these throw, and then have changed nothing.

// Adds those of the days from `first` to `last`, both included, that are not there, as working days.
void CreateCalendar(Progress& progress, Connection& connection, Day first, Day last);

// Reads a year and draws it.
void ShowCalendar(Connection& connection, CalendarSheet& sheet, int year);

// Stores the rows that were changed since they were drawn. A day that is gone from the store is a complaint.
void UpdateCalendar(Progress& progress, Connection& connection, const CalendarSheet& sheet);

} // namespace kurbo
