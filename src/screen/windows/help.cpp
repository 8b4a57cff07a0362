#include "screen/windows/help.h"

#include "base/system/files.h"
#include "screen/windows/frmAbout.h"
#include "screen/windows/frmHelp.h"

#include <QAction>
#include <QShortcut>

namespace kurbo {
namespace {

// From the active control to the window that holds it; the controls of an array share their name.
QStringList anchorsOf(const QWidget& window) {
    const QString form = window.objectName();
    QStringList anchors;
    for (const QWidget* control = window.focusWidget(); control && control != &window;
         control = control->parentWidget())
        for (const QString& name : {control->objectName(), control->objectName().section(u'_', 0, 0)})
            anchors.append(form + u'.' + name);
    return anchors << form;
}

} // namespace

void openHelp(Prompts& prompts, const QString& path, QWidget& window) {
    QString file = path;
    if (!CheckPath(file)) {
        prompts.exclaim(lines(QStringLiteral("ヘルプファイル"), path, QStringLiteral("が見つかりません。")));
        return;
    }
    const QStringList anchors = anchorsOf(window);
    auto* const help = new frmHelp(file, &window);
    help->show();
    help->showTopic(anchors);
}

void wireHelp(QWidget& window, const Client& client) {
    const auto help = [&window, &client] { openHelp(client.context.prompts, client.helpPath(), window); };
    if (auto* const mnuTopic = window.findChild<QAction*>(QStringLiteral("mnuTopic"))) {
        mnuTopic->setShortcut(Qt::Key_F1);
        QObject::connect(mnuTopic, &QAction::triggered, &window, help);
    } else {
        QObject::connect(new QShortcut(Qt::Key_F1, &window), &QShortcut::activated, &window, help);
    }
    if (auto* const mnuVersion = window.findChild<QAction*>(QStringLiteral("mnuVersion")))
        QObject::connect(mnuVersion, &QAction::triggered, &window,
                         [&window, &client] { frmAbout(client.helpPath(), &window).exec(); });
}

} // namespace kurbo
