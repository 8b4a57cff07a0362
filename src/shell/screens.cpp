#include "shell/screens.h"

#include "card/frmKurbo.h"
#include "settings/frmWorkStyle.h"
#include "totals/frmTotal.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

template <typename Form>
QMainWindow* made(Client& client) {
    auto* const form = new Form(client);
    form->load();
    return form;
}

struct Screen {
    const char16_t* name;
    QMainWindow* (*make)(Client& client);
};

constexpr std::array screens{
    Screen{u"frmKurbo", &made<frmKurbo>},
    Screen{u"frmTotal", &made<frmTotal>},
    Screen{u"frmWorkStyle", &made<frmWorkStyle>},
};

} // namespace

QMainWindow* makeScreen(Client& client, const QString& name) {
    const auto found = std::ranges::find_if(screens, [&](const Screen& screen) { return name == screen.name; });
    return found == screens.end() ? nullptr : found->make(client);
}

} // namespace kurbo
