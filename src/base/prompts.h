#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kurbo {

enum class Icon { Critical, Exclamation, Information, Question };
enum class Buttons { Ok, YesNo, OkCancel };
enum class Answer { Ok, Cancel, Yes, No };

struct Message {
    QString title; // the product's name when empty
    QString text;
    Icon icon = Icon::Exclamation;
    Buttons buttons = Buttons::Ok;
    Answer preset = Answer::Ok;
};

// What a file dialog asks for.
struct FileQuestion {
    enum class Kind { Open, OpenMany, Save };
    Kind kind = Kind::Open;
    // "text|pattern|text|pattern"; empty for all files.
    QString filter{};
    // Of a save: what a name without an extension gets, without the dot.
    QString defaultExtension{};
    QString suggestedName{};
};

// Whatever the program tells or asks a person goes through here: boxes on the screen, standard error in the command
// line, a script in tests.
class Prompts {
  public:
    virtual ~Prompts() = default;
    virtual Answer ask(const Message& message) = 0;
    // The paths chosen, none when the dialog is cancelled. Files to open are there; to replace one by saving, the
    // person has said yes.
    virtual QStringList chooseFiles(const FileQuestion& question) = 0;
    // Opens a text file for the person to read and print; nothing waits for that.
    virtual void showText(const QString& /*path*/) {}

    // The common boxes, titled with the product's name.
    void exclaim(const QString& text);
    void inform(const QString& text);
    // Question of a risky kind: Yes and No, No being the preset.
    [[nodiscard]] bool confirm(const QString& text);
    // Ok and Cancel; true for Ok. `preset` is Cancel where nothing leads back.
    [[nodiscard]] bool agrees(const QString& question, Answer preset = Answer::Ok);
    // The same of what is about to be done: "<what>", a blank line and "よろしいですか？".
    [[nodiscard]] bool sure(const QString& what, Answer preset = Answer::Ok);

    // The file dialogs; nothing when they are cancelled.
    [[nodiscard]] std::optional<QString> openFile(const QString& filter);
    [[nodiscard]] QStringList openFiles(const QString& filter);
    [[nodiscard]] std::optional<QString> saveFile(const QString& filter, const QString& defaultExtension,
                                                  const QString& suggestedName = {});
};

} // namespace kurbo
