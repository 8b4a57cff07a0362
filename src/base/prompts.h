#pragma once

#include <QString>

#include <optional>

namespace kurbo {

enum class Icon { Critical, Exclamation, Information, Question };
enum class Buttons { Ok, YesNo, OkCancel };
enum class Answer { Ok, Cancel, Yes, No };

struct Message {
    QString title;
    QString text;
    Icon icon = Icon::Exclamation;
    Buttons buttons = Buttons::Ok;
    Answer preset = Answer::Ok;
};

// Whatever the program tells or asks a person goes through here: boxes on the screen, standard error in the command
// line, a script in tests.
class Prompts {
  public:
    virtual ~Prompts() = default;
    virtual Answer ask(const Message& message) = 0;
    // `filter` in the form "text|pattern"; nothing when the dialog is cancelled.
    virtual std::optional<QString> openFile(const QString& filter) = 0;

    // The common boxes, titled with the product's name.
    void exclaim(const QString& text);
    void inform(const QString& text);
    // Question of a risky kind: Yes and No, No being the preset.
    [[nodiscard]] bool confirm(const QString& text);
};

} // namespace kurbo
