#pragma once

#include <QString>

namespace kurbo {

// The fixed files, all in the application folder.
struct Paths {
    QString AppPath; // ends in a slash
    QString BackupPath;
    QString ParmPath;
    QString PrintPath;
    QString HolidayPath;
    QString KurboTmpPath;
    QString TotalTmpPath;
    QString TextTmpPath;
    // Help for people, and for the administrator.
    QString helpPath;
    QString adminHelpPath;
};

[[nodiscard]] Paths pathsIn(const QString& appFolder);

// The program's own folder when it can be written, otherwise the person's data folder `userFolder`, which is made.
[[nodiscard]] QString chooseAppFolder(const QString& programFolder, const QString& userFolder);

} // namespace kurbo
