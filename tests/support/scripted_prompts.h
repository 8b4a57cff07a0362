#pragma once

#include "base/prompts.h"

#include <QList>
#include <QString>

#include <optional>

namespace kurbo::test {

// Answers as the test has written down, in its order. An unexpected message and an expectation left over both fail the
// test.
class ScriptedPrompts final : public Prompts {
  public:
    ~ScriptedPrompts() override;

    // The next message holds `textPart`; it gets `answer`.
    ScriptedPrompts& expect(const QString& textPart, Answer answer = Answer::Ok);
    // The next file dialog gives this path, or these, or is cancelled.
    ScriptedPrompts& expectFile(const std::optional<QString>& path);
    ScriptedPrompts& expectFiles(const QStringList& paths);

    Answer ask(const Message& message) override;
    QStringList chooseFiles(const FileQuestion& question) override;
    void showText(const QString& path) override;

    // All that was asked, for looking at titles, icons and buttons.
    [[nodiscard]] const QList<Message>& seen() const { return seen_; }
    [[nodiscard]] const Message& last() const { return seen_.last(); }
    [[nodiscard]] const FileQuestion& lastFileQuestion() const { return lastFileQuestion_; }
    // The text files that were shown, as they were then.
    [[nodiscard]] const QStringList& shownTexts() const { return shownTexts_; }
    // Whether everything that was expected has come.
    [[nodiscard]] bool allShown() const { return script_.isEmpty() && files_.isEmpty(); }

  private:
    struct Expectation {
        QString textPart;
        Answer answer;
    };
    QList<Expectation> script_;
    QList<QStringList> files_;
    FileQuestion lastFileQuestion_;
    QList<Message> seen_;
    QStringList shownTexts_;
};

} // namespace kurbo::test
