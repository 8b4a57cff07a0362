#pragma once

#include <QString>

namespace kurbo {

[[nodiscard]] inline QString legalLine() {
    return QStringLiteral("Copyright © 2026 The Kurbo developers");
}

} // namespace kurbo
