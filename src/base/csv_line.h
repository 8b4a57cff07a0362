#pragma once

#include <QString>

#include <optional>

namespace kurbo {

// One field of a line, without the quotes that it may have had.
struct CsvCell {
    QString text;
    bool quoted = false;
};

// Takes the fields off a line, one by one.
class CsvLine final {
  public:
    explicit CsvLine(QString line) : line_(std::move(line)) {}
    // Nothing behind the last field, and where a quote has no partner or stands within an unquoted field.
    [[nodiscard]] std::optional<CsvCell> next();
    [[nodiscard]] bool atEnd() const { return at_ > line_.size(); }

  private:
    [[nodiscard]] std::optional<CsvCell> quotedCell();

    QString line_;
    qsizetype at_ = 0; // one behind the end when the last field has been taken
};

// In quotes, those within doubled.
[[nodiscard]] QString csvQuoted(QString text);

} // namespace kurbo
