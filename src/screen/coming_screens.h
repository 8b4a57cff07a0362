#pragma once

#include "base/guard.h"

namespace kurbo {

// The screens that a later version brings; their commands lead here. `screen` is the form's name.
void showComingScreen(const Context& context, const QString& screen);

} // namespace kurbo
