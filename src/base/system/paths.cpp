#include "base/system/paths.h"

#include "base/system/files.h"

#include <QDir>
#include <QTemporaryFile>

namespace kurbo {
namespace {

// Asks by writing: permissions alone do not tell for a share or a read-only medium.
bool canWrite(const QString& folder) {
    QTemporaryFile probe(addSlash(folder) + QStringLiteral("kurbo-XXXXXX.tmp"));
    return probe.open();
}

} // namespace

Paths pathsIn(const QString& appFolder) {
    const QString app = addSlash(appFolder);
    const auto in = [&app](const char16_t* name) { return app + QString::fromUtf16(name); };
    return {app,
            in(u"Backup.mdb"),
            in(u"Parm.dat"),
            in(u"Print.txt"),
            in(u"Holiday.txt"),
            in(u"Kurbo.tmp"),
            in(u"Total.tmp"),
            in(u"Text.tmp"),
            in(u"Kurbo.hlp"),
            in(u"KurboAdm.hlp")};
}

QString chooseAppFolder(const QString& programFolder, const QString& userFolder) {
    if (canWrite(programFolder)) return programFolder;
    QDir().mkpath(userFolder);
    return userFolder;
}

} // namespace kurbo
