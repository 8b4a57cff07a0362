#include "ctl/console.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <cstdio>

namespace kurbo {
namespace {

void put(std::FILE* stream, QString text) {
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

QString appFolder(const Options& options) {
    const QString name = QStringLiteral("app-folder");
    if (options.has(name)) return options.value(name);
    return chooseAppFolder(QCoreApplication::applicationDirPath(),
                           QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
}

} // namespace

Answer ConsolePrompts::ask(const Message& message) {
    complain(message.text);
    sawFault_ = sawFault_ || message.icon == Icon::Critical;
    if (message.buttons == Buttons::Ok) return Answer::Ok;
    if (!answer_) throw Unanswered();
    return *answer_;
}

QStringList ConsolePrompts::chooseFiles(const FileQuestion& /*question*/) {
    return {};
}

Console::Console(const Options& options, std::optional<Answer> answer)
    : clock_(options.clock()),
      paths_(pathsIn(appFolder(options))),
      prompts_(answer),
      context_{prompts_, *clock_, paths_, progress_} {}

void say(const QString& text) {
    put(stdout, text);
}

void complain(const QString& text) {
    put(stderr, text);
}

} // namespace kurbo
