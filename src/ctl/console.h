#pragma once

#include "base/guard.h"
#include "ctl/command.h"
#include "ctl/options.h"

#include <memory>
#include <optional>

namespace kurbo {

// A question came up that no option answers.
struct Unanswered {};

// Says everything on standard error; questions are answered by an option.
class ConsolePrompts final : public Prompts {
  public:
    explicit ConsolePrompts(std::optional<Answer> answer = {}) : answer_(answer) {}
    Answer ask(const Message& message) override;
    QStringList chooseFiles(const FileQuestion& question) override;
    // Whether a fault of the program, the store or a file was reported.
    [[nodiscard]] bool sawFault() const { return sawFault_; }

  private:
    std::optional<Answer> answer_;
    bool sawFault_ = false;
};

// The surroundings of a command. Failures are logged in the application folder.
class Console final {
  public:
    explicit Console(const Options& options, std::optional<Answer> answer = {});
    [[nodiscard]] const Context& context() const { return context_; }
    // How a command ends whose failure has been said: as a fault, or as a refusal.
    [[nodiscard]] Exit refused() const { return prompts_.sawFault() ? Exit::Fault : Exit::Refused; }

  private:
    std::unique_ptr<Clock> clock_;
    Paths paths_;
    ConsolePrompts prompts_;
    NoProgress progress_;
    Context context_;
};

// One text on standard output or standard error, with line breaks as the console has them.
void say(const QString& text);
void complain(const QString& text);

} // namespace kurbo
