#include "session/parm_file.h"

#include "base/system/code_page.h"
#include "base/system/files.h"

namespace kurbo {
namespace {

// One item as the file syntax has it: up to the closing quote, or, unquoted, up to a comma or the end of the line.
QString firstItem(const QString& text) {
    const QString item = text.trimmed();
    if (item.startsWith(u'"')) return item.mid(1, item.indexOf(u'"', 1) - 1);
    const QString line = item.section(u'\n', 0, 0).trimmed();
    return line.section(u',', 0, 0).trimmed();
}

bool isNumbered(const Fault& fault, FileError number) {
    return fault.number() == static_cast<std::int64_t>(number);
}

ParmResult resultOf(const QString& path, QString& dbPath) {
    const QByteArray bytes = readFile(path);
    if (bytes.isEmpty()) return ParmResult::InputPastEnd;
    dbPath = firstItem(fromCodePage(bytes));
    if (dbPath.isEmpty()) return ParmResult::Install;
    return CheckPath(dbPath) ? ParmResult::OK : ParmResult::NoDB;
}

} // namespace

ParmResult ReadParm(const Context& context, const QString& path, QString& dbPath) {
    return guarded(context, u"basKurbo", u"ReadParm", ParmResult::Error, [&] {
        try {
            return resultOf(path, dbPath);
        } catch (const Fault& fault) {
            if (!isNumbered(fault, FileError::NotFound)) throw;
            return ParmResult::NoParm;
        }
    });
}

bool WriteParm(const Context& context, const QString& path, const QString& dbPath) {
    return guarded(context, u"basKurbo", u"WriteParm", false, [&] {
        QString missing;
        const auto bytes = toCodePage(u'"' + dbPath + QStringLiteral("\"\r\n"), &missing);
        if (dbPath.contains(u'"')) missing = QStringLiteral("\"");
        // A character that the code page holds under a twin would name another file.
        for (const QChar c : dbPath)
            if (missing.isEmpty() && bytes && !c.isSurrogate() && fromCodePage(*toCodePage(c)) != c) missing = c;
        if (!bytes || !missing.isEmpty())
            throw Complaint(lines(QStringLiteral("パスに使用できない文字「%1」が含まれています。").arg(missing),
                                  QStringLiteral("別の名前のフォルダまたはファイルを指定して下さい。")));
        replaceFile(path, *bytes);
        return true;
    });
}

} // namespace kurbo
