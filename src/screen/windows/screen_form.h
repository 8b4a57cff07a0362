#pragma once

#include "store/client.h"

#include <QMainWindow>

#include <functional>

class QAbstractButton;
class QAction;
class QLabel;

namespace kurbo {

class Grid;

// A window with commands: what such windows have in common. The controls are found by their names.
class ScreenForm : public QMainWindow {
    Q_OBJECT

  public:
    ScreenForm(const ScreenForm&) = delete;
    ScreenForm& operator=(const ScreenForm&) = delete;

  protected:
    using Command = std::function<void()>;

    ScreenForm(Client& client, QWidget* parent);

    // Once the controls are there: the title behind the product's name, Esc, F1, mnuClose, mnuTopic and mnuVersion.
    void dress(const QString& title);
    // The same under a title that already tells whose window it is.
    void dressAs(const QString& wholeTitle);
    // A button, or none, and its menu twin, or none, run the same command.
    void onCommand(QAbstractButton* button, QAction* action, const Command& command);
    // Runs a command: the open cell of each grid is taken first, and the window then shows what stands.
    void run(const Command& command);
    // Takes the open cell of each grid; false when one is refused and stays open.
    [[nodiscard]] bool finishEdits() const;
    // The tip of the current cell stands in the status line.
    void tellTips(Grid& grid);
    // Typing on a cell that can't be edited shows why in the status line.
    void tellRefusals(Grid& grid);
    // The title and the status line name the file that is shown instead of what is stored; empty for none.
    void tellFile(const QString& name);
    // For a grid that has come into view in the place of another one.
    void showTip(const Grid& grid);
    // For a destructor: the window goes, with the events of its going, before what its controls and grids work on.
    void putAway();
    // Opens the file again that the window works on, if the disk has taken it away; false after a reported failure.
    [[nodiscard]] virtual bool hasConnection() { return client_.hasConnection(objectName()); }
    // Shows what stands, after every command.
    virtual void showState() = 0;
    // Enables what can be given now.
    virtual void showCommands() {}
    // Enables the update, because a cell is typed into: the command takes the cell first.
    virtual void openUpdate();

    Client& client_; // NOLINT(*-non-private-member-variables-in-classes)
    // The program fills the controls, or a command runs: their events mean nothing.
    bool blnShowing_ = false; // NOLINT(*-non-private-member-variables-in-classes)

  private:
    void dressKeys();
    void keepFocus(const QWidget* held);

    QString title_;
    QLabel* lblTip_ = nullptr;
    QLabel* lblFile_ = nullptr;
};

} // namespace kurbo
