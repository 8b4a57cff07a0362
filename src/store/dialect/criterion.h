#pragma once

#include "store/value.h"

#include <QList>
#include <QString>

#include <functional>

namespace kurbo {

// The condition of a filter: comparisons of a field with a value, joined by AND, as in
// "F_Staff = '1001' AND F_YearMonth > ?". Text is compared in the store's order, and a number with a text as the text
// demands; Null meets no condition.
class Criterion final {
  public:
    // Throws the fault of a syntax error.
    explicit Criterion(const QString& text, const Values& values = {});

    using FieldValue = std::function<Value(const QString& field)>;
    [[nodiscard]] bool holds(const FieldValue& fieldValue) const;

  private:
    struct Comparison {
        QString field;
        QString sign;
        Value value;
    };
    QList<Comparison> comparisons_;
};

} // namespace kurbo
