#pragma once

#include "settings/records/record_fields.h"

namespace kurbo {

// The company itself.
[[nodiscard]] RecordFields corpFields();
// What is stored, blanks before anything is. Throws.
[[nodiscard]] RecordTexts readCorp(Connection& connection);
// Stores checked texts; `before` is what was read. Throws.
void writeCorp(Connection& connection, const RecordTexts& before, const RecordTexts& now);

} // namespace kurbo
