#include "totals/csv/csv_file.h"

#include "base/system/file_lock.h"
#include "base/system/files.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>

namespace kurbo {
namespace {

constexpr qsizetype maxFiles = 100;
constexpr qsizetype maxMonths = 200;
// Far more than the months of one load.
constexpr qint64 maxBytes = 16LL * 1024 * 1024;

Complaint lockedFile() {
    return Complaint(lines(QStringLiteral("指定したファイルは他のアプリケーションでロックされているか、"),
                           QStringLiteral("書き込み保護の設定がなされています。")));
}

// The old file is replaced and not written into, so that only an opening tells whether it may be changed.
void refuseLocked(const QString& file) {
    const Descriptor old{::open(QFile::encodeName(file).constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK)};
    if (old.get() < 0) {
        if (errno == EBUSY || errno == ETXTBSY) throw lockedFile();
        if (errno != ENOENT) throw fileFault(errno, file);
    } else if (!tryLock(old.get(), 0, LockKind::Exclusive)) {
        throw lockedFile();
    }
}

void replaceUnlocked(const QString& file, const QByteArray& bytes) {
    try {
        const QString target = chosenFile(file);
        refuseLocked(target);
        replaceFile(target, bytes);
    } catch (const Fault& fault) {
        if (fault.number() == static_cast<std::int64_t>(FileError::PermissionDenied)) throw lockedFile();
        throw;
    }
}

QByteArray bytesOf(const QString& file) {
    const QFileInfo info(file);
    if (info.exists() && (!info.isFile() || info.size() > maxBytes))
        throw Complaint(lines(QStringLiteral("データ形式に誤りがあります。"), QStringLiteral("ﾌｧｲﾙ名：") + file));
    return readFile(file);
}

} // namespace

int CsvSaveTotal(const Context& context, const QString& file, const QList<MonthRecord>& months) {
    return guarded(context, u"frmTotal", u"CsvSaveTotal", -1, [&] {
        replaceUnlocked(file, csvBytes(months));
        return static_cast<int>(months.size());
    });
}

std::optional<QList<MonthRecord>> ReadCsvFile(const Context& context, const QString& file) {
    return guarded(context, u"frmCsv", u"ReadCsvFile", std::optional<QList<MonthRecord>>(),
                   [&] { return readCsv(bytesOf(file), file); });
}

bool mayLoadCsv(const Context& context, qsizetype files) {
    if (files <= maxFiles) return true;
    context.prompts.exclaim(QStringLiteral("１度に読込めるファイル数の上限(100)を超えています。"));
    return false;
}

std::optional<QList<LoadedMonth>> loadCsv(const Context& context, const QStringList& files) {
    if (!mayLoadCsv(context, files.size())) return {};
    QList<LoadedMonth> loaded;
    for (const QString& file : files) {
        const auto months = ReadCsvFile(context, file);
        if (!months) return {};
        for (const MonthRecord& month : *months) loaded.append({file, month});
        if (loaded.size() <= maxMonths) continue;
        context.prompts.exclaim(lines(QStringLiteral("１度に読込めるデータ数の上限(200)を超えています。"),
                                      QStringLiteral("複数回に分けて読込を行って下さい。")));
        return {};
    }
    return loaded;
}

} // namespace kurbo
