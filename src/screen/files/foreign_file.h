#pragma once

#include "base/failure.h"

#include <QByteArray>
#include <QString>

namespace kurbo {

// The Complaint about a file that is damaged, or of another kind than it should be.
[[nodiscard]] Complaint foreignFile();

// All bytes of a file that may come from anywhere. Throws foreignFile() for what is no plain file or is longer than
// `limit` bytes, and a Fault when the file is missing or can't be read.
[[nodiscard]] QByteArray readForeignFile(const QString& file, qint64 limit);

} // namespace kurbo
