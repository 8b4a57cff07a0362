#include "screen/open_forms.h"

#include <QApplication>

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

// They show the client's own progress, or texts that are only read.
constexpr std::array workless{u"frmSplash", u"frmWaiting", u"frmHelp", u"frmListing", u"frmAbout"};

bool isForm(const QWidget* window) {
    return window->objectName().startsWith(QStringLiteral("frm"));
}

QWidget* loadedForm(const QString& name) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(windows, [&](const QWidget* window) {
        return window->isVisible() && window->objectName().compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == windows.end() ? nullptr : *found;
}

} // namespace

bool IsFormLoaded(const QString& name) {
    return loadedForm(name) != nullptr;
}

QWidgetList openScreens() {
    QWidgetList screens;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        const auto isIt = [name = window->objectName()](const char16_t* other) { return name == other; };
        if (window->isVisible() && isForm(window) && std::ranges::none_of(workless, isIt)) screens.append(window);
    }
    return screens;
}

int openForms() {
    return static_cast<int>(openScreens().size());
}

bool activateForm(const QString& name) {
    QWidget* const form = loadedForm(name);
    if (form) bringToFront(*form);
    return form;
}

void bringToFront(QWidget& form) {
    form.setWindowState(form.windowState() & ~Qt::WindowMinimized);
    form.raise();
    form.activateWindow();
}

bool isBoxUp() {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal && !isForm(modal);
}

} // namespace kurbo
