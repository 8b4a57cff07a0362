#include "base/csv_line.h"

namespace kurbo {
namespace {

constexpr QChar quote = u'"';

} // namespace

std::optional<CsvCell> CsvLine::next() {
    if (atEnd()) return {};
    if (at_ < line_.size() && line_[at_] == quote) return quotedCell();
    const qsizetype comma = line_.indexOf(u',', at_);
    const qsizetype end = comma < 0 ? line_.size() : comma;
    const QString text = line_.mid(at_, end - at_);
    at_ = end + 1;
    if (text.contains(quote)) return {};
    return CsvCell{text, false};
}

std::optional<CsvCell> CsvLine::quotedCell() {
    QString text;
    for (qsizetype from = at_ + 1;;) {
        const qsizetype end = line_.indexOf(quote, from);
        if (end < 0) return {};
        text += line_.mid(from, end - from);
        from = end + 1;
        const bool last = from == line_.size();
        if (last || line_[from] == u',') {
            at_ = from + 1;
            return CsvCell{text, true};
        }
        if (line_[from] != quote) return {};
        text += quote;
        ++from;
    }
}

QString csvQuoted(QString text) {
    return quote + text.replace(quote, QStringLiteral("\"\"")) + quote;
}

} // namespace kurbo
