#include "ctl/options.h"

#include "ctl/result_output.h"

namespace kurbo {

Options::Options(const Command& command, const QStringList& arguments) {
    parser_.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    add(commonOptions());
    add(command.options);
    if (!parser_.parse(QStringList(QStringLiteral("kurboctl")) + arguments)) throw WrongUse{parser_.errorText()};
    const qsizetype expected = command.argumentCount();
    if (parser_.positionalArguments().size() < expected) throw WrongUse{QStringLiteral("an argument is missing")};
    if (!command.takesMoreArguments() && !argumentsFrom(expected).isEmpty())
        throw WrongUse{QStringLiteral("too many arguments: ") + parser_.positionalArguments().last()};
    for (const OptionText& option : command.options)
        if (option.needed) (void)needed(QString::fromUtf16(option.name));
    (void)clock();
    (void)formatNamed(value(QStringLiteral("format")));
}

void Options::add(std::span<const OptionText> options) {
    for (const OptionText& option : options)
        parser_.addOption(QCommandLineOption(QString::fromUtf16(option.name), QString::fromUtf16(option.text),
                                             QString::fromUtf16(option.value)));
}

QString Options::needed(const QString& name) const {
    if (!has(name)) throw WrongUse{QStringLiteral("--%1 is missing").arg(name)};
    return value(name);
}

int Options::number(const QString& name, int otherwise, int least, int most) const {
    if (!has(name)) return otherwise;
    bool ok = false;
    const int number = value(name).toInt(&ok);
    if (!ok || number < least || number > most)
        throw WrongUse{QStringLiteral("--%1 takes a whole number from %2 to %3").arg(name).arg(least).arg(most)};
    return number;
}

std::optional<Day> Options::day(const QString& name) const {
    if (!has(name)) return {};
    const auto day = parseSlashDate(value(name));
    if (!day) throw WrongUse{QStringLiteral("--%1 takes a date, yyyy/mm/dd").arg(name)};
    return day;
}

std::chrono::year_month Options::month(const QString& name) const {
    const auto month = parseSlashMonth(needed(name));
    if (!month) throw WrongUse{QStringLiteral("--%1 takes a month, yyyy/mm").arg(name)};
    return *month;
}

std::unique_ptr<Clock> Options::clock() const {
    const QString at = QStringLiteral("at");
    if (has(at)) {
        const auto moment = parseSlashMoment(value(at));
        if (!moment) throw WrongUse{QStringLiteral("--at takes a moment, \"yyyy/mm/dd hh:nn:ss\"")};
        return std::make_unique<FixedClock>(*moment);
    }
    if (const auto today = day(QStringLiteral("today"))) return std::make_unique<ShiftedClock>(*today);
    return std::make_unique<SystemClock>();
}

} // namespace kurbo
