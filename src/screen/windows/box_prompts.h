#pragma once

#include "base/prompts.h"

#include <QStringList>

namespace kurbo {

// Messages and questions in boxes on the screen.
class BoxPrompts final : public Prompts {
  public:
    Answer ask(const Message& message) override;
    QStringList chooseFiles(const FileQuestion& question) override;
    void showText(const QString& path) override;
};

// "text|pattern|text|pattern" as the toolkit's dialogs want it; an empty filter means all files.
[[nodiscard]] QStringList nameFilters(const QString& filter);

} // namespace kurbo
