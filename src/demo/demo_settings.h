#pragma once

#include "demo/demo_people.h"

namespace kurbo {

// The company's settings: work style, band sets 1 (day) and 2 (night), limits and access rights.
void writeSettings(Connection& connection, bool flexible, const std::vector<DemoSection>& sections);

} // namespace kurbo
