#include "screen/coming_screens.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

struct Screen {
    const char16_t* name;
    const char16_t* caption;
};

constexpr std::array screens{
    Screen{u"frmMaintainance", u"データ移動"},
    Screen{u"frmDeleteDest", u"外出先削除"},
};

} // namespace

void showComingScreen(const Context& context, const QString& screen) {
    const auto found = std::ranges::find_if(screens, [&](const Screen& coming) { return screen == coming.name; });
    const QString caption = found == screens.end() ? screen : QString::fromUtf16(found->caption);
    context.prompts.inform(QStringLiteral("「%1」画面は次の版で利用できます。").arg(caption));
}

} // namespace kurbo
