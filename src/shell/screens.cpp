#include "shell/screens.h"

#include "card/frmKurbo.h"
#include "maintenance/frmDeleteDest.h"
#include "maintenance/frmMaintainance.h"
#include "screen/windows/hourglass.h"
#include "screen/windows/window_manners.h"
#include "session/setup_order.h"
#include "settings/calendar/frmCalendar.h"
#include "settings/people/frmAccess.h"
#include "settings/people/frmAsign.h"
#include "settings/people/frmPassword.h"
#include "settings/records/frmCorp.h"
#include "settings/records/frmSection.h"
#include "settings/records/frmStaff.h"
#include "settings/work_style/frmWorkStyle.h"
#include "settings/work_time/frmWorkTime.h"
#include "shell/frmParm.h"
#include "totals/frmTotal.h"

#include <algorithm>

namespace kurbo {
namespace {

template <typename Form>
Form* loaded(Screens& screens, Form* form) {
    if constexpr (std::is_base_of_v<SettingsForm, Form>)
        QObject::connect(form, &SettingsForm::closed, &screens, &Screens::settingsClosed);
    form->load();
    return form;
}

template <typename Form>
QWidget* made(Screens& screens, QWidget* leading) {
    return loaded(screens, new Form(screens.client(), leading));
}

QWidget* madeWorkTime(Screens& screens, QWidget* leading) {
    auto* const form = new frmWorkTime(screens.client(), leading);
    if (const auto* const people = qobject_cast<const frmAsign*>(screens.window(Screen::Asign)))
        form->setFirstPage(people->askedPage());
    return loaded(screens, form);
}

QWidget* madeAsign(Screens& screens, QWidget* leading) {
    auto* const form = loaded(screens, new frmAsign(screens.client(), leading));
    const auto lead = [&screens, form](Screen screen) {
        return [&screens, form, screen] { screens.openOver(screen, *form); };
    };
    QObject::connect(form, &frmAsign::workTimeAsked, &screens, lead(Screen::WorkTime));
    QObject::connect(form, &frmAsign::accessAsked, &screens, lead(Screen::Access));
    return form;
}

QWidget* madeParm(Screens& screens, QWidget* /*leading*/) {
    auto* const form = new frmParm(screens.client(), &screens.mainWindow());
    form->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(form, &QDialog::finished, &screens, &Screens::settingsClosed);
    QObject::connect(form, &frmParm::databaseChosen, &screens, &Screens::databaseChosen);
    return form;
}

bool anybody(const Session& session) {
    return !session.SessionStaff.isEmpty();
}

bool admin(const Session& session) {
    return session.access.IsAdmin;
}

template <Right right>
bool whoMay(const Session& session) {
    return session.access.has(right);
}

template <Setting setting>
bool inOrder(const Context& context, Connection& connection) {
    return settingAllowed(context, connection, setting);
}

constexpr std::size_t placeOf(Screen screen) {
    return static_cast<std::size_t>(screen);
}

constexpr auto beside = Qt::NonModal;
constexpr auto modal = Qt::ApplicationModal;
using enum Screen;

// The card and the totals go to other sites' files, under the rights of what they show: one of them at a time. An open
// card knows its rows by numbers that belong to others after a move, and would go to the other file with its next
// update after the choice of another database.
constexpr std::array<ScreenEntry, screenCount> table{{
    {Kurbo, made<frmKurbo>, beside, whoMay<Right::ReadMyKurbo>, cardAllowed, true, {"cmdKurbo"}},
    {Total, made<frmTotal>, beside, whoMay<Right::ReadOtherKurbo>, cardAllowed, true, {"cmdTotal"}},
    {Corp, made<frmCorp>, modal, admin, inOrder<Setting::Corp>, false, {"mnuCorp"}},
    {Section, made<frmSection>, modal, admin, inOrder<Setting::Section>, false, {"mnuSection"}},
    {Staff, made<frmStaff>, modal, admin, inOrder<Setting::Staff>, false, {"mnuStaff"}},
    {WorkStyle, made<frmWorkStyle>, modal, admin, inOrder<Setting::WorkStyle>, false, {"mnuWorkStyle"}},
    {WorkTime, madeWorkTime, modal, admin, inOrder<Setting::WorkTime>, false, {"mnuWorkTime"}},
    {Access, made<frmAccess>, modal, admin, inOrder<Setting::Access>, false, {"mnuAccess"}},
    {Asign, madeAsign, beside, admin, inOrder<Setting::User>, false, {"mnuUser"}},
    {Calendar, made<frmCalendar>, beside, admin, inOrder<Setting::Calendar>, false, {"mnuCalendar"}},
    {Password, made<frmPassword>, modal, anybody, nullptr, false, {"mnuPassword"}},
    {Maintainance, made<frmMaintainance>, modal, admin, moveAllowed, true, {"mnuMove"}},
    {DeleteDest, made<frmDeleteDest>, modal, anybody, nullptr, false, {"mnuDeleteDest", "mnuDeleteDestAdmin"}},
    {Parm, madeParm, modal, anybody, nullptr, true, {"mnuDB"}},
}};
static_assert(std::ranges::all_of(table,
                                  [](const ScreenEntry& entry) { return &entry == &table[placeOf(entry.screen)]; }));

bool isUp(const QPointer<QWidget>& window) {
    return window && window->isVisible();
}

} // namespace

std::span<const ScreenEntry, screenCount> screenTable() {
    return table;
}

// Also those that are closed and only wait to go: they work on the client.
Screens::~Screens() {
    for (const QPointer<QWidget>& window : windows_) delete window;
}

bool Screens::isOffered(Screen screen) const {
    return table[placeOf(screen)].isFor(client_.session);
}

QWidget* Screens::window(Screen screen) const {
    const QPointer<QWidget>& window = windows_[placeOf(screen)];
    return isUp(window) ? window.data() : nullptr;
}

bool Screens::isAnyOpen() const {
    return std::ranges::any_of(windows_, &isUp);
}

bool Screens::bringForward(Screen screen) const {
    QWidget* const form = window(screen);
    if (form) bringToFront(*form);
    return form;
}

void Screens::open(Screen screen) {
    const ScreenEntry& entry = table[placeOf(screen)];
    if (bringForward(screen)) return;
    if (entry.isReady && !entry.isReady(client_.context, client_.HomeConnection)) return;
    if (!entry.alone || closeAll()) show(screen, nullptr);
}

void Screens::openOver(Screen screen, QWidget& leading) {
    if (!bringForward(screen)) show(screen, &leading);
}

void Screens::show(Screen screen, QWidget* leading) {
    const Hourglass hourglass;
    const ScreenEntry& entry = table[placeOf(screen)];
    QWidget* const form = entry.make(*this, leading);
    windows_[placeOf(screen)] = form;
    form->setWindowModality(entry.modality);
    form->show();
}

bool Screens::closeAll() {
    for (const QPointer<QWidget>& window : windows_) {
        if (!isUp(window) || window->close()) continue;
        bringToFront(*window);
        return false;
    }
    return true;
}

} // namespace kurbo
