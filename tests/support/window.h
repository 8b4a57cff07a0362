#pragma once

#include "support/sample_company.h"
#include "support/typing.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QStatusBar>

namespace kurbo::test {

// A part of a window by its name, which fails the test where there is none.
template <typename Part>
[[nodiscard]] Part& named(const QWidget& window, const char* name) {
    auto* const part = window.findChild<Part*>(QString::fromLatin1(name));
    if (!part) ADD_FAILURE() << name;
    return *part;
}

// The window of a kind that is on the screen, if there is one.
template <typename Form>
[[nodiscard]] Form* onScreen() {
    for (QWidget* const window : QApplication::topLevelWidgets())
        if (auto* const form = qobject_cast<Form*>(window); form && form->isVisible()) return form;
    return nullptr;
}

// A window over a company, worked as a person works it.
template <typename Form, typename Company = SampleCompany>
class Window : public Company {
  protected:
    ~Window() override { delete form; }
    // Shows the window anew, in the session as it stands.
    void show() {
        if (!this->client.HomeConnection.isOpen()) this->client.openHome();
        delete form;
        form = new Form(this->client);
        form->load();
        form->show();
        EXPECT_TRUE(form->windowTitle().startsWith(u"Kurbo"_q)) << form->windowTitle();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    void open(const QString& staff = QStringLiteral("ADMIN")) {
        this->client.session.SessionStaff = staff;
        show();
    }
    template <typename Part = QLineEdit>
    [[nodiscard]] Part& of(const char* name) const {
        return named<Part>(*form, name);
    }
    // Into whatever has the focus, as the keyboard does.
    static void press(int key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), with);
        QCoreApplication::processEvents();
    }
    void type(const char* name, const QString& text) const { typeInto(&of<QWidget>(name), text); }
    [[nodiscard]] QString text(const char* name) const { return editorOf(&of<QWidget>(name))->text(); }
    // An entry of a list, and what the window makes of it.
    void choose(const char* list, int row) const {
        of<QListWidget>(list).setCurrentRow(row);
        QTest::qWait(1);
    }
    void click(const char* button) const { of<QAbstractButton>(button).click(); }
    void trigger(const char* action) const { of<QAction>(action).trigger(); }
    [[nodiscard]] bool isUpdatable(const char* page = "") const {
        const QByteArray name = QByteArray("Update") + page;
        const bool updatable = of<QWidget>(("cmd" + name).constData()).isEnabled();
        EXPECT_EQ(of<QAction>(("mnu" + name).constData()).isEnabled(), updatable);
        return updatable;
    }

    QPointer<Form> form;
};

} // namespace kurbo::test
