#include "shell/screens.h"

#include "card/frmKurbo.h"
#include "maintenance/frmDeleteDest.h"
#include "maintenance/frmMaintainance.h"
#include "settings/calendar/frmCalendar.h"
#include "settings/people/frmAccess.h"
#include "settings/people/frmAsign.h"
#include "settings/people/frmPassword.h"
#include "settings/records/frmCorp.h"
#include "settings/records/frmSection.h"
#include "settings/records/frmStaff.h"
#include "settings/work_style/frmWorkStyle.h"
#include "settings/work_time/frmWorkTime.h"
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

// While it is open, nothing else can be worked on.
template <typename Form>
QMainWindow* madeModal(Client& client) {
    QMainWindow* const form = made<Form>(client);
    form->setWindowModality(Qt::ApplicationModal);
    return form;
}

struct Screen {
    const char16_t* name;
    QMainWindow* (*make)(Client& client);
};

constexpr std::array screens{
    Screen{u"frmKurbo", &made<frmKurbo>},
    Screen{u"frmTotal", &made<frmTotal>},
    Screen{u"frmCorp", &madeModal<frmCorp>},
    Screen{u"frmSection", &madeModal<frmSection>},
    Screen{u"frmStaff", &madeModal<frmStaff>},
    Screen{u"frmWorkStyle", &madeModal<frmWorkStyle>},
    Screen{u"frmWorkTime", &madeModal<frmWorkTime>},
    Screen{u"frmAccess", &madeModal<frmAccess>},
    Screen{u"frmAsign", &made<frmAsign>},
    Screen{u"frmCalendar", &made<frmCalendar>},
    Screen{u"frmPassword", &madeModal<frmPassword>},
    Screen{u"frmMaintainance", &madeModal<frmMaintainance>},
    Screen{u"frmDeleteDest", &madeModal<frmDeleteDest>},
};

} // namespace

QMainWindow* makeScreen(Client& client, const QString& name) {
    const auto found = std::ranges::find_if(screens, [&](const Screen& screen) { return name == screen.name; });
    Q_ASSERT(found != screens.end());
    return found->make(client);
}

} // namespace kurbo
