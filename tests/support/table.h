#pragma once

#include <QStringList>

namespace kurbo::test {

// A table written as text: a row each line, its cells parted by "|"; "/n" is the end of a line.
inline QList<QStringList> rowsOf(const char* table) {
    QList<QStringList> rows;
    for (const QString& line : QString::fromUtf8(table).split(u'\n', Qt::SkipEmptyParts)) {
        QStringList& row = rows.emplaceBack(line.split(u'|'));
        for (QString& cell : row) cell = cell.trimmed().replace(QStringLiteral("/n"), QStringLiteral("\r\n"));
    }
    return rows;
}

} // namespace kurbo::test
