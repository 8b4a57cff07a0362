#include "tour/photographed_prompts.h"

#include "screen/windows/frmListing.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace kurbo {
namespace {

constexpr int untilItIsUp = 300; // milliseconds

QMessageBox::ButtonRole roleOf(Answer answer) {
    return answer == Answer::Ok || answer == Answer::Yes ? QMessageBox::AcceptRole : QMessageBox::RejectRole;
}

} // namespace

Answer PhotographedPrompts::ask(const Message& message) {
    const Answer answer = std::exchange(answer_, std::nullopt).value_or(message.preset);
    QTimer::singleShot(untilItIsUp, qApp, [this, answer] { photographAndAnswer(answer); });
    return boxes_.ask(message);
}

void PhotographedPrompts::photographAndAnswer(Answer answer) {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return;
    camera_.shoot(*box, QStringLiteral("メッセージ ") + box->text().section(u'\n', 0, 0).left(24));
    for (QAbstractButton* const button : box->buttons())
        if (box->buttonRole(button) == roleOf(answer)) return button->click();
}

QStringList PhotographedPrompts::chooseFiles(const FileQuestion& question) {
    if (question.kind != FileQuestion::Kind::Save) return {};
    return {camera_.folder() + u'/' + question.suggestedName};
}

void PhotographedPrompts::showText(const QString& path) {
    frmListing listing(path);
    listing.show();
    camera_.shoot(listing, listing.windowTitle());
}

} // namespace kurbo
