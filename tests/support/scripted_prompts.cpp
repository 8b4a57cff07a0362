#include "support/scripted_prompts.h"

#include <QFile>

#include <gtest/gtest.h>

namespace kurbo::test {

ScriptedPrompts::~ScriptedPrompts() {
    for (const auto& left : script_) ADD_FAILURE() << "never asked: " << left.textPart.toStdString();
    EXPECT_TRUE(files_.isEmpty()) << "a file dialog never came";
}

ScriptedPrompts& ScriptedPrompts::expect(const QString& textPart, Answer answer) {
    script_.append({textPart, answer});
    return *this;
}

ScriptedPrompts& ScriptedPrompts::expectFile(const std::optional<QString>& path) {
    return expectFiles(path ? QStringList{*path} : QStringList());
}

ScriptedPrompts& ScriptedPrompts::expectFiles(const QStringList& paths) {
    files_.append(paths);
    return *this;
}

Answer ScriptedPrompts::ask(const Message& message) {
    seen_.append(message);
    if (script_.isEmpty() || !message.text.contains(script_.first().textPart)) {
        ADD_FAILURE() << "unexpected message: " << message.text.toStdString();
        return message.preset;
    }
    return script_.takeFirst().answer;
}

QStringList ScriptedPrompts::chooseFiles(const FileQuestion& question) {
    lastFileQuestion_ = question;
    if (!files_.isEmpty()) return files_.takeFirst();
    ADD_FAILURE() << "unexpected file dialog: " << question.filter.toStdString();
    return {};
}

void ScriptedPrompts::showText(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    shownTexts_.append(QString::fromUtf8(file.readAll()));
}

} // namespace kurbo::test
