#pragma once

#include <QByteArray>

namespace kurbo::test {

// What reads files that may come from anywhere, given any bytes: each reader either refuses them with its complaint or
// gives what can be written and read again. Anything else is thrown as std::logic_error.
void fuzzCsv(const QByteArray& bytes);
void fuzzGrid(const QByteArray& bytes);
void fuzzArchive(const QByteArray& bytes);

} // namespace kurbo::test
