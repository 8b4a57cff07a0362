#include "screen/windows/window_manners.h"

#include "screen/windows/form_dialog.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

namespace kurbo {
namespace {

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
    const auto* const dialog = qobject_cast<const QDialog*>(QApplication::activeModalWidget());
    return dialog && !qobject_cast<const FormDialog*>(dialog);
}

} // namespace kurbo
