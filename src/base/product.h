#pragma once

#include <QString>

namespace kurbo {

// The product's name, the one source of every title.
inline QString productName() {
    return QStringLiteral("Kurbo");
}

// "major.minor.revision" of this build.
inline QString productVersion() {
    return QStringLiteral(KURBO_VERSION);
}

} // namespace kurbo
