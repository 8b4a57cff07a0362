#pragma once

#include "screen/fields.h"
#include "settings/settings_form.h"
#include "support/sample_company.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QPointer>
#include <QTest>

namespace kurbo::test {

// A settings screen over the sample company, worked by keyboard as an administrator works it.
template <typename Form>
class SettingsWindow : public SampleCompany {
  protected:
    ~SettingsWindow() override { delete form; }
    void open() {
        if (client.DbPath.isEmpty()) {
            client.DbPath = path;
            client.openHome();
        }
        delete form;
        form = new Form(client);
        form->load();
        form->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }
    template <typename Widget>
    [[nodiscard]] Widget* find(const char* name) const {
        auto* const found = form->template findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    // Replaces what stands in a text box, a masked box or an editable combo.
    void type(const char* name, const QString& text) const {
        auto* const field = find<QWidget>(name);
        field->setFocus();
        editorOf(field)->selectAll();
        QTest::keyClick(editorOf(field), Qt::Key_Delete);
        for (const QChar sign : text) QTest::sendKeyEvent(QTest::Click, editorOf(field), Qt::Key_unknown, sign, {});
    }
    void click(const char* button) const { find<QAbstractButton>(button)->click(); }
    void trigger(const char* action) const { find<QAction>(action)->trigger(); }
    // Both commands of an update are off, or both are on.
    [[nodiscard]] bool mayUpdate() const {
        EXPECT_EQ(find<QWidget>("cmdUpdate")->isEnabled(), find<QAction>("mnuUpdate")->isEnabled());
        return find<QWidget>("cmdUpdate")->isEnabled();
    }

    Client client{desk.context};
    QPointer<Form> form;
};

} // namespace kurbo::test
