#include "store/value.h"

#include <cmath>

namespace kurbo {
namespace {

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

} // namespace

Value Value::textOrNull(const QString& text) {
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() ? Value() : Value(trimmed);
}

QString Value::text() const {
    return std::visit(Overloaded{[](std::monostate) { return QString(); },
                                 [](std::int64_t number) { return QString::number(number); },
                                 [](double number) { return QString::number(number, 'g', 15); },
                                 [](const QString& text) { return text; },
                                 [](Moment moment) { return slashMoment(moment); }},
                      data_);
}

std::int64_t Value::integer() const {
    return std::visit(Overloaded{[](std::monostate) { return std::int64_t{0}; },
                                 [](std::int64_t number) { return number; },
                                 [](double number) { return static_cast<std::int64_t>(std::llrint(number)); },
                                 [](const QString& text) { return std::int64_t{text.toLongLong()}; },
                                 [](Moment moment) { return std::int64_t{moment.time_since_epoch().count()}; }},
                      data_);
}

double Value::real() const {
    if (const auto* number = std::get_if<double>(&data_)) return *number;
    if (const auto* text = std::get_if<QString>(&data_)) return text->toDouble();
    return static_cast<double>(integer());
}

std::optional<Moment> Value::moment() const {
    if (const auto* moment = std::get_if<Moment>(&data_)) return *moment;
    if (const auto* text = std::get_if<QString>(&data_)) return parseIso(text->toStdString());
    return {};
}

} // namespace kurbo
