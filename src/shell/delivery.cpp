#include "shell/delivery.h"

#include "base/files.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace kurbo {
namespace {

// The copy keeps the date of the delivered file, so that a later delivery is told from it.
void deliverNewer(const QString& delivered, const QString& path) {
    const QDateTime date = QFileInfo(delivered).lastModified();
    const QFileInfo old(path);
    if (old.exists() && old.lastModified() >= date) return;
    QFile source(delivered);
    QSaveFile copy(path);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly)) return;
    copy.write(source.readAll());
    if (!copy.commit()) return;
    QFile written(path);
    if (written.open(QIODevice::ReadWrite)) written.setFileTime(date, QFileDevice::FileModificationTime);
}

} // namespace

void deliverFiles(const QString& shareFolder, const Paths& paths) {
    const auto delivered = [&shareFolder](const QString& path) { return addSlash(shareFolder) + FileNameOf(path); };
    QFile::copy(delivered(paths.HolidayPath), paths.HolidayPath);
    for (const QString& path : {paths.helpPath, paths.adminHelpPath}) deliverNewer(delivered(path), path);
}

} // namespace kurbo
