#include "screen/grid/text_line.h"

#include "base/system/code_page.h"
#include "base/system/files.h"
#include "screen/files/foreign_file.h"

#include <QStringView>

#include <algorithm>

namespace kurbo {
namespace {

constexpr qint64 maxLineBytes = 64LL * 1024;

bool isControl(QChar sign) {
    return sign < u' ' || sign == u'\x7F';
}

// Takes one quoted field from the front of `rest`.
QString takeField(QStringView& rest) {
    if (!rest.startsWith(u'"')) throw foreignFile();
    QString field;
    for (qsizetype end = rest.indexOf(u'"', 1); end > 0; end = rest.indexOf(u'"', 1)) {
        field += rest.mid(1, end - 1);
        rest = rest.mid(end + 1);
        if (!rest.startsWith(u'"')) return field;
        field += u'"';
    }
    throw foreignFile();
}

QStringView withoutLineEnd(QStringView text) {
    if (text.endsWith(u'\n')) text.chop(1);
    if (text.endsWith(u'\r')) text.chop(1);
    return text;
}

// The code page gives no replacement character, so one in the text stands for bytes that are none of its characters.
bool isSound(QStringView line) {
    return std::ranges::none_of(line,
                                [](QChar sign) { return isControl(sign) || sign == QChar::ReplacementCharacter; });
}

} // namespace

void writeTextLine(const QString& file, const QStringList& fields) {
    QStringList quoted;
    for (const QString& field : fields)
        quoted.append(u'"' + QString(field).replace(u'"', QStringLiteral("\"\"")) + u'"');
    const QString line = quoted.join(u',');
    const auto bytes = toCodePage(line);
    if (!bytes || !isSound(line) || fromCodePage(*bytes) != line) throw foreignFile();
    replaceFile(file, *bytes + QByteArrayLiteral("\r\n"));
}

QStringList readTextLine(const QString& file, int count) {
    const QString text = fromCodePage(readForeignFile(file, maxLineBytes));
    QStringView rest = withoutLineEnd(text);
    if (!isSound(rest)) throw foreignFile();
    QStringList fields;
    for (; fields.size() < count; fields.append(takeField(rest))) {
        if (fields.isEmpty()) continue;
        if (!rest.startsWith(u',')) throw foreignFile();
        rest = rest.mid(1);
    }
    if (!rest.isEmpty()) throw foreignFile();
    return fields;
}

} // namespace kurbo
