#pragma once

#include "settings/records/record_list.h"

namespace kurbo {

// The sections of C02_Section.
[[nodiscard]] const RecordList& sectionList();

} // namespace kurbo
