#include "shell/screens.h"

#include "card/frmKurbo.h"
#include "settings/frmAccess.h"
#include "settings/frmAsign.h"
#include "settings/frmCalendar.h"
#include "settings/frmWorkStyle.h"
#include "settings/frmWorkTime.h"
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
    Screen{u"frmKurbo", &made<frmKurbo>},         Screen{u"frmTotal", &made<frmTotal>},
    Screen{u"frmWorkStyle", &made<frmWorkStyle>}, Screen{u"frmAccess", &made<frmAccess>},
    Screen{u"frmAsign", &made<frmAsign>},         Screen{u"frmWorkTime", &made<frmWorkTime>},
    Screen{u"frmCalendar", &made<frmCalendar>},
};

} // namespace

QMainWindow* makeScreen(Client& client, const QString& name) {
    const auto found = std::ranges::find_if(screens, [&](const Screen& screen) { return name == screen.name; });
    return found == screens.end() ? nullptr : found->make(client);
}

} // namespace kurbo
