#include "screen/files/foreign_file.h"

#include "base/system/files.h"

#include <QFileInfo>

namespace kurbo {

Complaint foreignFile() {
    return Complaint(QStringLiteral("ファイル形式が異なります。"));
}

QByteArray readForeignFile(const QString& file, qint64 limit) {
    const QFileInfo info(file);
    if (info.exists() && (!info.isFile() || info.size() > limit)) throw foreignFile();
    return readFile(file);
}

} // namespace kurbo
