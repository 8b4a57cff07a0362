#include "shell/single_instance.h"

#include "base/system/files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace kurbo {
namespace {

QString lockName(const QString& appFolder) {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    const QByteArray folder = QFileInfo(appFolder).canonicalFilePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex().left(16);
    return addSlash(runtime.isEmpty() ? QDir::tempPath() : runtime) + QStringLiteral("kurbo-") +
           QString::fromLatin1(hash) + QStringLiteral(".lock");
}

} // namespace

SingleInstance::SingleInstance(const QString& appFolder) : lock_(lockName(appFolder)) {
    // Never stale by age, only by the death of its process.
    lock_.setStaleLockTime(0);
    first_ = lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
}

} // namespace kurbo
