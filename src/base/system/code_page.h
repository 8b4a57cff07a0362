#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace kurbo {

// The system's code page is CP932. Characters that it holds under a twin (〜 − — ‖ ¥ ‾) go to that twin.

// Gives nothing when a character is missing from the code page; `missing` then names the first such character.
[[nodiscard]] std::optional<QByteArray> toCodePage(const QString& text, QString* missing = nullptr);
// Writes "?" for each character that is missing.
[[nodiscard]] QByteArray toCodePageVisibly(const QString& text);
[[nodiscard]] QString fromCodePage(const QByteArray& bytes);
// Bytes in the code page: 2 for a full-width character, 1 for ASCII and half-width katakana; a missing one counts 2.
[[nodiscard]] int byteLength(const QString& text);

} // namespace kurbo
