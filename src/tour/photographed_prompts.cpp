#include "tour/photographed_prompts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace kurbo {
namespace {

constexpr int untilItIsUp = 300; // milliseconds

QMessageBox::StandardButton buttonOf(Answer answer) {
    switch (answer) {
    case Answer::Yes:
        return QMessageBox::Yes;
    case Answer::No:
        return QMessageBox::No;
    case Answer::Cancel:
        return QMessageBox::Cancel;
    case Answer::Ok:
        break;
    }
    return QMessageBox::Ok;
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
    if (QAbstractButton* const button = box->button(buttonOf(answer))) button->click();
}

std::optional<QString> PhotographedPrompts::openFile(const QString& /*filter*/) {
    return {};
}

} // namespace kurbo
