#pragma once

#include "session/login.h"
#include "store/client.h"

#include <QPointer>
#include <QWidget>

class QAbstractButton;
class QLineEdit;

namespace kurbo {

class DataCombo;

// The controls of the main window in which people log in.
struct LoginControls {
    DataCombo* section;
    DataCombo* staff;
    QLineEdit* password;
    QAbstractButton* login;
    QWidget* menus;
};

// What is typed into the log-in fields: their lists, their refusals, and what it means when the focus comes and goes.
class LoginFields final : public QObject {
    Q_OBJECT

  public:
    LoginFields(Client& client, const LoginControls& controls);

    // Reads both lists anew; what was chosen stays chosen while its list has it. The home database is open; throws.
    void readLists();
    // The same, if they are out of date.
    void refreshLists();
    // What the lists show has changed in the database, or may have.
    void outdate() { current_ = false; }
    // Another database: nothing is chosen, and its lists are read. Failures are reported.
    void beginAnew();

    [[nodiscard]] Credentials credentials() const;
    // A text is being refused: what was pressed meanwhile counts for nothing.
    [[nodiscard]] bool isRefusing() const { return refusing_; }
    // Into the field whose text is in no list, if there is one.
    void backToRefused();
    void clearNames();
    void clearPassword();
    // For a new try, and for the next person.
    void enterPassword();
    void enterStaff();
    // The focus is moved by the program: that means nothing here.
    void moveFocus(QWidget* to);

  Q_SIGNALS:
    // A person goes into a field.
    void entered();

  private:
    void sectionChanged();
    void checkInput();
    void focusMoved(QWidget* from, QWidget* to);
    void enter(QWidget* field);
    [[nodiscard]] bool isField(const QWidget* widget) const;
    [[nodiscard]] bool refuses(const QWidget* field) const;
    void refuse(DataCombo* field);
    void backTo(DataCombo* field);

    Client& client_;
    const LoginControls on_;
    QPointer<QWidget> leftForMenus_;
    bool current_ = false;
    bool refusing_ = false;
    bool quiet_ = false;
};

} // namespace kurbo
