#pragma once

#include "settings/settings_form.h"
#include "store/client.h"
#include "support/sample_company.h"
#include "support/typing.h"

#include <QAction>
#include <QPointer>
#include <QPushButton>

namespace kurbo::test {

// A settings screen on the sample company, worked as a person works it.
template <typename Form>
class SettingsWindow : public SampleCompany {
  protected:
    ~SettingsWindow() override { delete form; }
    void open(const QString& staff = QStringLiteral("ADMIN")) {
        client.DbPath = path;
        if (!client.HomeConnection.isOpen()) client.openHome();
        client.session.SessionStaff = staff;
        delete form;
        form = new Form(client);
        form->load();
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    template <typename Control = QLineEdit>
    [[nodiscard]] Control& of(const char* name) const {
        return *form->template findChild<Control*>(QString::fromLatin1(name));
    }
    static void press(int key) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        QCoreApplication::processEvents();
    }
    void type(const char* name, const QString& text) const { typeInto(&of<QWidget>(name), text); }
    void click(const char* button) const { of<QAbstractButton>(button).click(); }
    void trigger(const char* action) const { of<QAction>(action).trigger(); }
    [[nodiscard]] bool isUpdatable() const {
        EXPECT_EQ(of<QWidget>("cmdUpdate").isEnabled(), of<QAction>("mnuUpdate").isEnabled());
        return of<QWidget>("cmdUpdate").isEnabled();
    }

    Client client{desk.context};
    QPointer<Form> form;
};

} // namespace kurbo::test
