#include "screen/screen_form.h"

#include "base/product.h"
#include "screen/grid.h"
#include "screen/help.h"
#include "screen/hourglass.h"
#include "screen/open_forms.h"

#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStatusBar>

#include <algorithm>

namespace kurbo {

ScreenForm::ScreenForm(Client& client, QWidget* parent) : QMainWindow(parent), client_(client) {
    setAttribute(Qt::WA_DeleteOnClose);
}

void ScreenForm::dress(const QString& title) {
    setWindowTitle(productName() + u'－' + title);
    menuBar()->setNativeMenuBar(false);
    dressKeys();
    for (Grid* const grid : findChildren<Grid*>()) {
        connect(grid, &Grid::ChangeEdit, this, [this] { openUpdate(); });
        connect(grid, &Grid::AfterEdit, this, [this] { showCommands(); });
    }
}

void ScreenForm::dressKeys() {
    wireEscape(*this);
    for (QPushButton* const button : findChildren<QPushButton*>()) button->setAutoDefault(true);
    if (auto* const mnuClose = findChild<QAction*>(QStringLiteral("mnuClose")))
        connect(mnuClose, &QAction::triggered, this, &QWidget::close);
    wireHelp(*this, client_);
}

void ScreenForm::openUpdate() {
    if (auto* const cmdUpdate = findChild<QPushButton*>(QStringLiteral("cmdUpdate"))) cmdUpdate->setEnabled(true);
    if (auto* const mnuUpdate = findChild<QAction*>(QStringLiteral("mnuUpdate"))) mnuUpdate->setEnabled(true);
}

void ScreenForm::onCommand(QAbstractButton* button, QAction* action, const Command& command) {
    const auto body = [this, command] { run(command); };
    if (button) connect(button, &QAbstractButton::clicked, this, body);
    if (action) connect(action, &QAction::triggered, this, body);
}

void ScreenForm::run(const Command& command) {
    if (blnShowing_) return;
    if (finishEdits()) {
        const QScopedValueRollback showing(blnShowing_, true);
        const Hourglass hourglass;
        if (hasConnection()) command();
    }
    showState();
}

bool ScreenForm::finishEdits() const {
    return std::ranges::all_of(findChildren<Grid*>(), [](Grid* grid) { return grid->finishEdit(); });
}

void ScreenForm::tellTips(Grid& grid) {
    if (!lblTip_) {
        lblTip_ = new QLabel(this);
        statusBar()->addWidget(lblTip_, 1);
    }
    connect(&grid, &Grid::AfterRowColChange, lblTip_, [this, &grid] { showTip(grid); });
}

void ScreenForm::showTip(const Grid& grid) {
    const GridRules* const rules = grid.grid()->rules();
    lblTip_->setText(rules && grid.Row() >= 0 ? rules->tip(grid.Row(), grid.Col()) : QString());
}

void ScreenForm::putAway() {
    for (Grid* const grid : findChildren<Grid*>()) grid->cancelEdit();
    hide();
}

} // namespace kurbo
