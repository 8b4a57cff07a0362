#include "ctl/command.h"

#include <QStringList>

#include <array>

namespace kurbo {
namespace {

constexpr std::array common{
    OptionText{
        .name = u"format", .value = u"table|tsv|csv|json", .text = u"how card, totals and sql print; table without it"},
    OptionText{.name = u"today", .value = u"yyyy/mm/dd", .text = u"the day that counts as today"},
    OptionText{.name = u"at", .value = u"\"yyyy/mm/dd hh:nn:ss\"", .text = u"the moment that counts as now"},
    OptionText{.name = u"app-folder", .value = u"DIR", .text = u"the folder of Error.log"},
};

QString text(const char16_t* literal) {
    return QString::fromUtf16(literal);
}

QString withValue(const OptionText& option) {
    const QString value = text(option.value);
    return QStringLiteral("--") + text(option.name) + (value.isEmpty() ? value : u' ' + value);
}

// Two columns, the second one aligned.
QString table(const QList<QStringList>& rows) {
    qsizetype width = 0;
    for (const QStringList& row : rows) width = qMax(width, row[0].size());
    QString lines;
    for (const QStringList& row : rows)
        lines += QStringLiteral("  ") + row[0].leftJustified(width + 2) + row[1] + u'\n';
    return lines;
}

QString optionTable(std::span<const OptionText> options) {
    QList<QStringList> rows;
    for (const OptionText& option : options) rows.append({withValue(option), text(option.text)});
    return table(rows);
}

} // namespace

qsizetype Command::argumentCount() const {
    return text(arguments).split(u' ', Qt::SkipEmptyParts).size();
}

bool Command::takesMoreArguments() const {
    return text(arguments).endsWith(QStringLiteral("..."));
}

std::span<const OptionText> commonOptions() {
    return common;
}

QString usageOf(const Command& command) {
    QString usage = QStringLiteral("kurboctl ") + text(command.name) + u' ' + text(command.arguments);
    for (const OptionText& option : command.options)
        usage += option.needed ? u' ' + withValue(option) : QStringLiteral(" [") + withValue(option) + u']';
    return usage;
}

QString helpOf(const Command& command) {
    QString help =
        QStringLiteral("usage: ") + usageOf(command) + QStringLiteral("\n\n") + text(command.summary) + u'\n';
    if (*command.more) help += text(command.more) + u'\n';
    if (!command.options.empty()) help += QStringLiteral("\noptions:\n") + optionTable(command.options);
    return help + QStringLiteral("\nevery command:\n") + optionTable(common) +
           QStringLiteral("\nexample:\n  kurboctl ") + text(command.example);
}

QString helpOf(std::span<const Command* const> commands) {
    QList<QStringList> rows;
    for (const Command* const command : commands) rows.append({text(command->name), text(command->summary)});
    return QStringLiteral("usage: kurboctl COMMAND FILE [ARGUMENT...] [OPTION...]\n\n") + table(rows) +
           QStringLiteral("\nkurboctl COMMAND --help tells more of a command, kurboctl --version the version.\n"
                          "exit status: 0 done, 1 refused, 2 wrong use, 3 fault");
}

} // namespace kurbo
