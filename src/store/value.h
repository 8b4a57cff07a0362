#pragma once

#include "base/day.h"

#include <QList>
#include <QString>

#include <cstdint>
#include <optional>
#include <variant>

namespace kurbo {

// One field of the store. Null is not the empty text, and not 0.
class Value final {
  public:
    Value() = default;
    Value(int number) : data_(static_cast<std::int64_t>(number)) {}
    Value(std::int64_t number) : data_(number) {}
    Value(double number) : data_(number) {}
    Value(const QString& text) : data_(text) {}
    Value(Moment moment) : data_(moment) {}
    Value(Day day) : data_(Moment{day}) {}
    Value(const char*) = delete;
    Value(bool) = delete;

    // True is stored as -1.
    [[nodiscard]] static Value yesNo(bool yes) { return yes ? -1 : 0; }
    // The text without blanks at its ends; Null when nothing is left.
    [[nodiscard]] static Value textOrNull(const QString& text);

    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::monostate>(data_); }
    // Null counts as empty text, 0 and no; a text that is no number counts as 0.
    [[nodiscard]] QString text() const;
    [[nodiscard]] std::int64_t integer() const;
    [[nodiscard]] double real() const;
    [[nodiscard]] bool yes() const { return integer() != 0; }
    [[nodiscard]] std::optional<Moment> moment() const;

    using Data = std::variant<std::monostate, std::int64_t, double, QString, Moment>;
    [[nodiscard]] const Data& data() const { return data_; }
    friend bool operator==(const Value&, const Value&) = default;

  private:
    Data data_;
};

using Values = QList<Value>;

} // namespace kurbo
