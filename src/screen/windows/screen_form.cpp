#include "screen/windows/screen_form.h"

#include "base/product.h"
#include "screen/grid/grid.h"
#include "screen/windows/help.h"
#include "screen/windows/hourglass.h"
#include "screen/windows/window_manners.h"

#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStatusBar>

#include <algorithm>

namespace kurbo {

ScreenForm::ScreenForm(Client& client, QWidget* parent) : QMainWindow(parent), client_(client) {
    setAttribute(Qt::WA_DeleteOnClose);
}

void ScreenForm::dress(const QString& title) {
    dressAs(productName() + u'－' + title);
}

void ScreenForm::dressAs(const QString& wholeTitle) {
    title_ = wholeTitle;
    setWindowTitle(title_);
    if (auto* const menus = findChild<QMenuBar*>()) menus->setNativeMenuBar(false);
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
    const QPointer<QWidget> held = focusWidget();
    if (finishEdits()) {
        const QScopedValueRollback showing(blnShowing_, true);
        const Hourglass hourglass;
        if (hasConnection()) command();
    }
    showState();
    keepFocus(held);
}

// A button that its own command has closed leaves the focus to the cells, not to the button behind it.
void ScreenForm::keepFocus(const QWidget* held) {
    if (!held || held->isEnabled()) return;
    for (Grid* const grid : findChildren<Grid*>())
        if (grid->isVisible() && grid->isEnabled()) return grid->setFocus();
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

void ScreenForm::tellRefusals(Grid& grid) {
    constexpr int shown = 5000;
    QStatusBar* const line = statusBar();
    connect(&grid, &Grid::EditRefused, line, [line, &grid](int row, int column) {
        if (const GridRules* const rules = grid.grid()->rules())
            line->showMessage(rules->closedTip(row, column), shown);
    });
}

void ScreenForm::tellFile(const QString& name) {
    setWindowTitle(name.isEmpty() ? title_ : QStringLiteral("%1（%2）").arg(title_, name));
    if (!lblFile_) {
        lblFile_ = new QLabel(this);
        statusBar()->addPermanentWidget(lblFile_);
    }
    lblFile_->setVisible(!name.isEmpty());
    lblFile_->setText(QStringLiteral("ファイル「%1」を表示しています。「再表示」で元に戻ります。").arg(name));
}

void ScreenForm::putAway() {
    for (Grid* const grid : findChildren<Grid*>()) grid->cancelEdit();
    hide();
}

} // namespace kurbo
