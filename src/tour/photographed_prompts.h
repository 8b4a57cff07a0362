#pragma once

#include "screen/windows/box_prompts.h"
#include "tour/camera.h"

namespace kurbo {

// The real boxes, each photographed when it is up and then answered. Files are saved beside the pictures.
class PhotographedPrompts final : public Prompts {
  public:
    explicit PhotographedPrompts(Camera& camera) : camera_(camera) {}
    // How the next question is answered; every other box gets its preset.
    void answerNext(Answer answer) { answer_ = answer; }
    Answer ask(const Message& message) override;
    QStringList chooseFiles(const FileQuestion& question) override;
    void showText(const QString& path) override;

  private:
    void photographAndAnswer(Answer answer);

    Camera& camera_;
    BoxPrompts boxes_;
    std::optional<Answer> answer_;
};

} // namespace kurbo
