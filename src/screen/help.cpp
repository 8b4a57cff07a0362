#include "screen/help.h"

#include "base/failure.h"
#include "base/files.h"

#include <QDesktopServices>
#include <QUrl>

namespace kurbo {

void openHelp(Prompts& prompts, const QString& path) {
    QString file = path;
    if (CheckPath(file))
        QDesktopServices::openUrl(QUrl::fromLocalFile(file));
    else
        prompts.exclaim(lines(QStringLiteral("ヘルプファイル"), path, QStringLiteral("が見つかりません。")));
}

} // namespace kurbo
