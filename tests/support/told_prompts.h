#pragma once

#include "base/prompts.h"

#include <QList>

namespace kurbo::test {

// Takes every message as it comes.
class ToldPrompts final : public Prompts {
  public:
    Answer ask(const Message& message) override {
        messages.append(message);
        return message.preset;
    }
    QStringList chooseFiles(const FileQuestion& /*question*/) override { return {}; }
    QList<Message> messages;
};

} // namespace kurbo::test
