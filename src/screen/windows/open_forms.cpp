#include "screen/windows/open_forms.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

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

// The toolkit closes a list while it asks who wants the key, and then finds nobody but the form.
class ListsFirst final : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride || !QApplication::activePopupWidget()) return false;
        event->setAccepted(static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape);
        return event->isAccepted();
    }
};

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

void wireEscape(QWidget& form) {
    qApp->installEventFilter(new ListsFirst(&form));
    QObject::connect(new QShortcut(Qt::Key_Escape, &form), &QShortcut::activated, &form, &QWidget::close);
}

bool isBoxUp() {
    const QWidget* const modal = QApplication::activeModalWidget();
    return modal && !isForm(modal);
}

} // namespace kurbo
