#pragma once

#include <QString>

#include <span>

namespace kurbo {

enum class Exit { Done = 0, Refused = 1, WrongUse = 2, Fault = 3 };

class Options;

// An option of a command, without its two dashes.
struct OptionText {
    const char16_t* name;
    // What stands behind it, in the words of the help; empty for a switch.
    const char16_t* value = u"";
    const char16_t* text = u"";
    // The command doesn't run without it.
    bool needed = false;
};

// All that is known of a command: its arguments are read, and its help is written, by this alone.
struct Command {
    const char16_t* name;
    Exit (*run)(const Options& options);
    // The words that are no options, parted by blanks; the last may be repeated when it ends in "...".
    const char16_t* arguments;
    // One line, and what else there is to say, in lines.
    const char16_t* summary;
    const char16_t* more;
    std::span<const OptionText> options;
    // Behind "kurboctl", with the name.
    const char16_t* example;

    [[nodiscard]] qsizetype argumentCount() const;
    [[nodiscard]] bool takesMoreArguments() const;
};

// Those that every command takes.
[[nodiscard]] std::span<const OptionText> commonOptions();

// "kurboctl NAME ARGUMENTS --needed VALUE [--option VALUE]"
[[nodiscard]] QString usageOf(const Command& command);
// The help of one command.
[[nodiscard]] QString helpOf(const Command& command);
// The list of all, a line each.
[[nodiscard]] QString helpOf(std::span<const Command* const> commands);

} // namespace kurbo
