#include "screen/open_forms.h"

#include <QApplication>

#include <algorithm>

namespace kurbo {
namespace {

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
        const QString name = window->objectName();
        if (window->isVisible() && isForm(window) && name != u"frmSplash" && name != u"frmWaiting")
            screens.append(window);
    }
    return screens;
}

int openForms() {
    return static_cast<int>(openScreens().size());
}

bool activateForm(const QString& name) {
    QWidget* const form = loadedForm(name);
    if (!form) return false;
    form->setWindowState(form->windowState() & ~Qt::WindowMinimized);
    form->raise();
    form->activateWindow();
    return true;
}

bool isBoxUp() {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal && !isForm(modal);
}

} // namespace kurbo
