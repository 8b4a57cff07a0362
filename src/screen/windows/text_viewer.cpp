#include "screen/windows/text_viewer.h"

#include <QProcess>
#include <QStandardPaths>

namespace kurbo {
namespace {

// Asked before: the opener itself doesn't tell whether anything came up.
bool desktopHasViewer() {
    constexpr int longest = 2000; // milliseconds
    QProcess question;
    question.start(QStringLiteral("xdg-mime"),
                   {QStringLiteral("query"), QStringLiteral("default"), QStringLiteral("text/plain")});
    return question.waitForFinished(longest) && !question.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

bool openInViewer(const QString& path) {
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    return !opener.isEmpty() && desktopHasViewer() && QProcess::startDetached(opener, {path});
}

} // namespace kurbo
