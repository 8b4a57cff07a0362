#include "base/prompts.h"

#include "base/product.h"

namespace kurbo {

void Prompts::exclaim(const QString& text) {
    ask({productName(), text, Icon::Exclamation});
}

void Prompts::inform(const QString& text) {
    ask({productName(), text, Icon::Information});
}

bool Prompts::confirm(const QString& text) {
    return ask({productName(), text, Icon::Question, Buttons::YesNo, Answer::No}) == Answer::Yes;
}

} // namespace kurbo
