#include "store/dialect/sql_functions.h"

#include "base/day.h"

#include <sqlite3.h>

#include <QString>

#include <array>
#include <span>

namespace kurbo {
namespace {

using Arguments = std::span<sqlite3_value*>;

QString textOf(sqlite3_value* value) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return QString::fromUtf8(bytes, sqlite3_value_bytes(value));
}

void give(sqlite3_context* context, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    sqlite3_result_text(context, bytes.constData(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
}

void left(sqlite3_context* context, Arguments arguments) {
    give(context, textOf(arguments[0]).left(sqlite3_value_int(arguments[1])));
}

void right(sqlite3_context* context, Arguments arguments) {
    give(context, textOf(arguments[0]).right(sqlite3_value_int(arguments[1])));
}

// Positions count from 1; without a length the rest of the text.
void mid(sqlite3_context* context, Arguments arguments) {
    const qsizetype length = arguments.size() > 2 ? sqlite3_value_int(arguments[2]) : -1;
    give(context, textOf(arguments[0]).mid(sqlite3_value_int(arguments[1]) - 1, length));
}

void clng(sqlite3_context* context, Arguments arguments) {
    bool ok = false;
    const double number = textOf(arguments[0]).trimmed().toDouble(&ok);
    if (!ok) return sqlite3_result_error(context, "CLng: the text is no number", -1);
    sqlite3_result_int64(context, qRound64(number));
}

void cdate(sqlite3_context* context, Arguments arguments) {
    const QString text = textOf(arguments[0]);
    const auto slash = parseSlashMoment(text);
    const auto moment = slash ? slash : parseIso(text.toStdString());
    if (!moment) return sqlite3_result_error(context, "CDate: the text is no date", -1);
    give(context, QString::fromStdString(isoText(*moment)));
}

// A part of a date by the run of its letter: "yyyy", "m" or "mm", ... ; a single letter leaves out the leading zero,
// and "m" behind the hour means minutes.
QString partOf(const QString& stored, QChar letter, qsizetype length, bool behindHour) {
    struct Part {
        char16_t letter;
        int from;
        int width;
    };
    for (const auto& [known, from, width] : {Part{u'y', 0, 4}, Part{u'm', 5, 2}, Part{u'd', 8, 2}, Part{u'h', 11, 2},
                                             Part{u'n', 14, 2}, Part{u's', 17, 2}}) {
        if (letter != known) continue;
        const QString digits = stored.mid(known == u'm' && behindHour ? 14 : from, width);
        if (known == u'y') return length == 2 ? digits.right(2) : digits;
        return length == 1 ? QString::number(digits.toInt()) : digits;
    }
    return QString(length, letter);
}

QString formattedMoment(Moment moment, const QString& pattern) {
    const QString stored = QString::fromStdString(isoText(moment));
    QString text;
    bool behindHour = false;
    for (qsizetype from = 0; from < pattern.size();) {
        const QChar letter = pattern[from].toLower();
        qsizetype past = from;
        while (past < pattern.size() && pattern[past].toLower() == letter) ++past;
        text += partOf(stored, letter, past - from, behindHour);
        if (letter.isLetter()) behindHour = letter == u'h';
        from = past;
    }
    return text;
}

// A run of "0" is the number with at least so many digits; every other character stands for itself.
QString formattedNumber(qint64 number, QString pattern) {
    const qsizetype from = pattern.indexOf(u'0');
    qsizetype past = from;
    while (past >= 0 && past < pattern.size() && pattern[past] == u'0') ++past;
    if (from < 0) return pattern;
    const QString digits = QString::number(qAbs(number)).rightJustified(past - from, u'0');
    return pattern.replace(from, past - from, number < 0 ? u'-' + digits : digits);
}

void format(sqlite3_context* context, Arguments arguments) {
    const QString text = textOf(arguments[0]);
    const QString pattern = textOf(arguments[1]);
    if (const auto moment = parseIso(text.toStdString())) return give(context, formattedMoment(*moment, pattern));
    bool ok = false;
    const qint64 number = qRound64(text.trimmed().toDouble(&ok));
    give(context, ok ? formattedNumber(number, pattern) : text);
}

template <void (*body)(sqlite3_context*, Arguments)>
void entry(sqlite3_context* context, int count, sqlite3_value** values) {
    const Arguments arguments(values, static_cast<std::size_t>(count));
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) return sqlite3_result_null(context);
    body(context, arguments);
}

struct Registered {
    const char* name;
    int arguments;
    void (*function)(sqlite3_context*, int, sqlite3_value**);
};

constexpr std::array registered{Registered{.name = "kurbo_left", .arguments = 2, .function = entry<left>},
                                Registered{.name = "kurbo_right", .arguments = 2, .function = entry<right>},
                                Registered{.name = "kurbo_mid", .arguments = 2, .function = entry<mid>},
                                Registered{.name = "kurbo_mid", .arguments = 3, .function = entry<mid>},
                                Registered{.name = "kurbo_clng", .arguments = 1, .function = entry<clng>},
                                Registered{.name = "kurbo_cdate", .arguments = 1, .function = entry<cdate>},
                                Registered{.name = "kurbo_format", .arguments = 2, .function = entry<format>}};

} // namespace

void installFunctions(sqlite3* database) {
    for (const auto& function : registered)
        sqlite3_create_function(database, function.name, function.arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                nullptr, function.function, nullptr, nullptr);
}

} // namespace kurbo
