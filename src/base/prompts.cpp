#include "base/prompts.h"

#include "base/failure.h"
#include "base/product.h"

namespace kurbo {
namespace {

std::optional<QString> firstOf(const QStringList& paths) {
    return paths.isEmpty() ? std::nullopt : std::optional(paths.constFirst());
}

} // namespace

void Prompts::exclaim(const QString& text) {
    ask({productName(), text, Icon::Exclamation});
}

void Prompts::inform(const QString& text) {
    ask({productName(), text, Icon::Information});
}

bool Prompts::confirm(const QString& text) {
    return ask({productName(), text, Icon::Question, Buttons::YesNo, Answer::No}) == Answer::Yes;
}

bool Prompts::agrees(const QString& question, Answer preset) {
    return ask({productName(), question, Icon::Question, Buttons::OkCancel, preset}) == Answer::Ok;
}

bool Prompts::sure(const QString& what, Answer preset) {
    return agrees(lines(what, QString(), QStringLiteral("よろしいですか？")), preset);
}

std::optional<QString> Prompts::openFile(const QString& filter) {
    return firstOf(chooseFiles({.kind = FileQuestion::Kind::Open, .filter = filter}));
}

QStringList Prompts::openFiles(const QString& filter) {
    return chooseFiles({.kind = FileQuestion::Kind::OpenMany, .filter = filter});
}

std::optional<QString> Prompts::saveFile(const QString& filter, const QString& defaultExtension,
                                         const QString& suggestedName) {
    return firstOf(chooseFiles({.kind = FileQuestion::Kind::Save,
                                .filter = filter,
                                .defaultExtension = defaultExtension,
                                .suggestedName = suggestedName}));
}

} // namespace kurbo
