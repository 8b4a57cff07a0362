#include "ctl/result_output.h"

#include "base/system/code_page.h"
#include "ctl/console.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace kurbo {
namespace {

QString plain(const Value& value) {
    if (const auto* moment = std::get_if<Moment>(&value.data())) return QString::fromStdString(isoText(*moment));
    return value.text();
}

QString json(const Value& value) {
    if (value.isNull()) return QStringLiteral("null");
    if (std::holds_alternative<std::int64_t>(value.data())) return value.text();
    if (const auto* number = std::get_if<double>(&value.data()); number && std::isfinite(*number))
        return QString::number(*number, 'g', 15);
    return jsonText(plain(value));
}

QString csv(QString cell) {
    static const QString special = QStringLiteral(",\"\r\n");
    const bool quoted = std::ranges::any_of(cell, [](QChar c) { return special.contains(c); });
    return quoted ? u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"' : cell;
}

QString tsv(QString cell) {
    return cell.replace(u'\t', u' ').replace(u'\r', u' ').replace(u'\n', u' ');
}

QStringList names(const Rows& rows) {
    QStringList cells;
    for (int i = 0; i < rows.columns(); ++i) cells.append(rows.name(i));
    return cells;
}

QStringList cells(const Rows& rows) {
    QStringList texts;
    for (int i = 0; i < rows.columns(); ++i) texts.append(plain(rows.value(i)));
    return texts;
}

void printJson(Rows& rows) {
    QStringList keys;
    for (const QString& name : names(rows)) keys.append(jsonText(name));
    QStringList objects;
    while (rows.next()) {
        QStringList members;
        for (int i = 0; i < rows.columns(); ++i) members.append(keys[i] + u':' + json(rows.value(i)));
        objects.append(u'{' + members.join(u',') + u'}');
    }
    say(u'[' + objects.join(u',') + u']');
}

void printLine(QStringList texts, QChar separator, QString (*cell)(QString)) {
    for (QString& text : texts) text = cell(text);
    say(texts.join(separator));
}

// Columns are aligned by the width of their characters, a full-width one counting two.
void printAligned(const QList<QStringList>& table) {
    QList<int> widths(table.first().size());
    for (const QStringList& line : table)
        for (qsizetype i = 0; i < line.size(); ++i) widths[i] = qMax(widths[i], byteLength(line[i]));
    for (const QStringList& line : table) {
        QString text;
        for (qsizetype i = 0; i < line.size(); ++i)
            text += line[i] + QString(widths[i] - byteLength(line[i]) + 2, u' ');
        say(text.trimmed().isEmpty() ? QString() : text.left(text.size() - 2));
    }
}

void printTable(Rows& rows) {
    QList<QStringList> table{names(rows)};
    while (rows.next()) table.append(cells(rows));
    printAligned(table);
}

void printLines(Rows& rows, QChar separator, QString (*cell)(QString)) {
    printLine(names(rows), separator, cell);
    while (rows.next()) printLine(cells(rows), separator, cell);
}

} // namespace

Format formatNamed(const QString& name) {
    if (name.isEmpty() || name == u"table") return Format::Table;
    if (name == u"tsv") return Format::Tsv;
    if (name == u"csv") return Format::Csv;
    if (name == u"json") return Format::Json;
    throw WrongUse{QStringLiteral("--format takes table, tsv, csv or json")};
}

void print(Rows& rows, Format format) {
    switch (format) {
    case Format::Table:
        return printTable(rows);
    case Format::Tsv:
        return printLines(rows, u'\t', tsv);
    case Format::Csv:
        return printLines(rows, u',', csv);
    case Format::Json:
        return printJson(rows);
    }
}

void printRows(const QStringList& headings, const QList<QStringList>& rows, Format format) {
    if (format == Format::Table) return printAligned(QList<QStringList>{headings} + rows);
    const bool tabs = format == Format::Tsv;
    printLine(headings, tabs ? u'\t' : u',', tabs ? tsv : csv);
    for (const QStringList& row : rows) printLine(row, tabs ? u'\t' : u',', tabs ? tsv : csv);
}

QString jsonText(const QString& text) {
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2));
}

QString jsonTexts(const QStringList& texts) {
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(texts)).toJson(QJsonDocument::Compact));
}

QString jsonTable(const QList<QStringList>& rows) {
    QStringList parts;
    for (const QStringList& row : rows) parts.append(jsonTexts(row));
    return u'[' + parts.join(u',') + u']';
}

} // namespace kurbo
