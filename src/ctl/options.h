#pragma once

#include "base/clock.h"
#include "ctl/command.h"

#include <QCommandLineParser>
#include <QStringList>

#include <memory>

namespace kurbo {

// The command line does not fit the command; `what` says why.
struct WrongUse {
    QString what;
};

// The arguments of one command, and the options that every command takes.
class Options final {
  public:
    // Throws WrongUse when they aren't those of the command.
    Options(const Command& command, const QStringList& arguments);

    [[nodiscard]] QString argument(qsizetype index) const { return parser_.positionalArguments().at(index); }
    [[nodiscard]] QStringList argumentsFrom(qsizetype index) const { return parser_.positionalArguments().mid(index); }
    [[nodiscard]] bool has(const QString& name) const { return parser_.isSet(name); }
    [[nodiscard]] QString value(const QString& name) const { return parser_.value(name); }
    // The value of an option that has to be there. Throws WrongUse.
    [[nodiscard]] QString needed(const QString& name) const;
    // A whole number from `least` to `most`; `otherwise` without the option. Throws WrongUse.
    [[nodiscard]] int number(const QString& name, int otherwise, int least, int most) const;
    // "yyyy/mm/dd"; nothing without the option. Throws WrongUse.
    [[nodiscard]] std::optional<Day> day(const QString& name) const;

    // "yyyy/mm" of an option that has to be there. Throws WrongUse.
    [[nodiscard]] std::chrono::year_month month(const QString& name) const;

    // The system's time, or what --today and --at make of it. Throws WrongUse.
    [[nodiscard]] std::unique_ptr<Clock> clock() const;

  private:
    void add(std::span<const OptionText> options);

    QCommandLineParser parser_;
};

} // namespace kurbo
