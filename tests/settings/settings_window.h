#pragma once

#include "screen/data_list.h"
#include "settings/settings_form.h"
#include "store/client.h"
#include "support/sample_company.h"

#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QPushButton>
#include <QTest>

namespace kurbo::test {

// A settings screen on the sample company, worked as a person works it.
template <typename Form>
class SettingsWindow : public SampleCompany {
  protected:
    ~SettingsWindow() override { delete form; }
    void open(const QString& staff = QStringLiteral("ADMIN")) {
        client.DbPath = path;
        client.openHome();
        client.session.SessionStaff = staff;
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
    // Into a box, over what stands there.
    void type(const char* name, const QString& text) const {
        auto& box = of<QWidget>(name);
        box.setFocus();
        if (auto* const line = qobject_cast<QLineEdit*>(&box)) line->selectAll();
        for (const char32_t sign : text.toUcs4()) {
            QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&sign, 1));
            QApplication::sendEvent(&box, &event);
        }
    }
    void trigger(const char* action) const { of<QAction>(action).trigger(); }
    [[nodiscard]] bool isUpdatable() const {
        EXPECT_EQ(of<QWidget>("cmdUpdate").isEnabled(), of<QAction>("mnuUpdate").isEnabled());
        return of<QWidget>("cmdUpdate").isEnabled();
    }

    Client client{desk.context};
    QPointer<Form> form;
};

} // namespace kurbo::test
