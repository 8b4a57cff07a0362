#include "base/error_log.h"

#include "base/system/code_page.h"
#include "base/system/files.h"

#include <fcntl.h>

namespace kurbo {
namespace {

QString quoted(const QString& text) {
    return u'"' + text + u'"';
}

QString oneLine(QString text) {
    return text.replace(QStringLiteral("\r\n"), QStringLiteral(" ")).replace(u'\n', u' ');
}

QString lineOf(const ErrorRecord& record) {
    return quoted(slashDate(record.date)) + u',' + quoted(record.module) + u',' + quoted(record.procedure) + u',' +
           quoted(record.source) + u',' + QString::number(record.number) + u',' + quoted(oneLine(record.description)) +
           QStringLiteral("\r\n");
}

} // namespace

void LogError(const QString& folder, const ErrorRecord& record) noexcept {
    try {
        const QString path = addSlash(folder) + QStringLiteral("Error.log");
        const Descriptor file = openOrMakePlain(path, O_WRONLY | O_APPEND, commonMode);
        if (file.get() >= 0) writeAll(file.get(), toCodePageVisibly(lineOf(record)), path);
    } catch (...) { // NOLINT(bugprone-empty-catch): a failed log never stops the program
    }
}

} // namespace kurbo
