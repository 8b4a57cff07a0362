#pragma once

#include "base/guard.h"

namespace kurbo {

// Tells of what a later version brings; its commands lead here.
void showComingScreen(const Context& context, const QString& screen);

} // namespace kurbo
