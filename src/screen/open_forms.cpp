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

int openForms() {
    const auto works = [](const QWidget* window) {
        const QString name = window->objectName();
        return window->isVisible() && isForm(window) && name != u"frmSplash" && name != u"frmWaiting";
    };
    const QWidgetList windows = QApplication::topLevelWidgets();
    return static_cast<int>(std::ranges::count_if(windows, works));
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
