#include "screen/coming_screens.h"

namespace kurbo {

void showComingScreen(const Context& context, const QString& screen) {
    context.prompts.inform(QStringLiteral("「%1」画面は次の版で利用できます。").arg(screen));
}

} // namespace kurbo
