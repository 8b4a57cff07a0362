#pragma once

#include "screen/fields/leave_check.h"
#include "screen/windows/screen_form.h"
#include "settings/settings_steps.h"

#include <QLineEdit>
#include <QTabWidget>

#include <vector>

namespace kurbo {

// A settings screen. What a person changes in a watched field raises the changed flag, which enables cmdUpdate and
// mnuUpdate; the window asks before it closes over changes.
class SettingsForm : public ScreenForm {
    Q_OBJECT

  public:
    // Reads the lists and shows the first record. After a failure, which is reported, all but closing is disabled.
    void load();

  Q_SIGNALS:
    void closed();

  protected:
    using ScreenForm::ScreenForm;

    // Reads what the screen needs and shows it; throws, or says loadFailed(). Runs with the loading flag set.
    virtual void readAll() = 0;
    // Something that the screen needs could not be read, and the person knows.
    void loadFailed() { alive_ = false; }
    [[nodiscard]] bool isAlive() const { return alive_; }
    // A watched field has been changed by the person: the place for enabling what depends on it.
    virtual void fieldChanged() {}
    // The last word before the window closes.
    [[nodiscard]] virtual bool mayClose() { return mayDiscard(subject_); }
    // cmdUpdate and mnuUpdate follow the changed flag.
    void showState() override;
    void showCommands() override { showState(); }
    [[nodiscard]] bool hasConnection() override;
    void closeEvent(QCloseEvent* event) override;

    // What the close question calls the screen.
    void setSubject(const QString& subject) { subject_ = subject; }
    // From now on a change of any field in `part` counts: text boxes, combos, check boxes, options.
    void watch(QWidget& part);
    // Fills controls with the loading flag set.
    void fill(const Command& show);
    // Shows records anew: fills controls, and the changed flag goes down. False after a failure, which is reported
    // under the procedure and leaves the flag.
    bool reload(QStringView procedure, const Command& show);
    void setChanged(bool changed);
    [[nodiscard]] bool isChanged() const { return changed_; }
    // Asks when there are changes; true when they may go.
    [[nodiscard]] bool mayDiscard(const QString& subject) const;
    // Check, question, write; after a refused check the field that it complains of comes forward.
    bool store(const SettingsStep& check, const SettingsStep& write);
    // The same, and the flag goes down.
    bool update(const SettingsStep& check, const SettingsStep& write);
    // Keeps the focus in a field whose text the rule refuses. The rule gives the refusal, empty for a good text; an
    // empty field is always good.
    void checkOnLeaving(QWidget* field, const std::function<QString(const QString& text)>& refusal);
    // The same when a page is left for another one.
    void checkOnLeavingPages(QTabWidget& pages);

  private:
    struct Check {
        QWidget* field;
        std::function<QString()> refusal;
    };

    void changedByPerson();
    void pageLeft(QTabWidget& pages, int left);
    void endWork();
    void bringForward(const FieldPlace& place);

    std::vector<Check> checks_;
    QString subject_;
    bool changed_ = false;
    bool alive_ = true;
};

} // namespace kurbo
