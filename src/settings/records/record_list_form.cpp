#include "settings/records/record_list_form.h"

#include "screen/fields/data_list.h"

#include <QAbstractButton>
#include <QAction>

namespace kurbo {
namespace {

QString text(const char16_t* words) {
    return QString::fromUtf16(words);
}

} // namespace

RecordListForm::RecordListForm(Client& client, QWidget* parent, const RecordList& list)
    : RecordForm(client, parent, list.fields), records_(list) {}

void RecordListForm::dressList(const QString& title, const QString& subject, const RecordListControls& controls) {
    const auto action = [this](const char* name) { return findChild<QAction*>(QString::fromLatin1(name)); };
    controls_ = controls;
    subject_ = subject;
    dressRecord(title, subject);
    connect(controls.list, &DataList::chosen, this, [this] { run([this] { choose(); }); });
    onCommand(controls.up, nullptr, [this] { move(Direction::Up); });
    onCommand(controls.down, nullptr, [this] { move(Direction::Down); });
    onCommand(controls.update, action("mnuUpdate"), [this] { updateRecord(); });
    onCommand(controls.print, action("mnuPrint"), [this] { print(records_.printName); });
    onCommand(nullptr, action("mnuDelete"), [this] { removeRecord(); });
}

void RecordListForm::readAll() {
    setChoices(recordChoices(client_.HomeConnection, records_));
    controls_.list->setEntries(recordNames(client_.HomeConnection, records_));
    showNew();
}

// The record that stands for a new one. Where somebody has removed it, the others can still be worked on.
void RecordListForm::showNew() {
    controls_.list->setBoundText(newCode());
    const bool found = !controls_.list->text().isEmpty();
    controls_.record->setEnabled(found);
    if (found) return showRecord(newCode());
    showTexts(RecordTexts(static_cast<qsizetype>(records_.fields.size())));
    code_.clear();
    setChanged(false);
    const QString lost = QStringLiteral("「%1」が削除されています。").arg(text(records_.reserved.name));
    if (records_.needsReserved) throw Complaint(lost);
    client_.context.prompts.exclaim(lost);
}

void RecordListForm::showRecord(const QString& code) {
    showTexts(kurbo::readRecord(client_.HomeConnection, records_, code));
    code_ = code;
    controls_.record->setEnabled(true);
    setChanged(false);
    recordShown();
}

void RecordListForm::choose() {
    const QString code = controls_.list->boundText();
    if (code == code_) return;
    const bool shown = mayDiscard(subject_) && guarded(client_.context, objectName(), records_.showName, false, [&] {
                           showRecord(code);
                           return true;
                       });
    if (!shown) controls_.list->setBoundText(code_);
}

// Reads the list anew and shows a record of it.
bool RecordListForm::refresh(const QString& code) {
    return guarded(client_.context, objectName(), records_.showName, false, [&] {
        controls_.list->setEntries(recordNames(client_.HomeConnection, records_));
        if (code == newCode()) {
            showNew();
        } else {
            controls_.list->setBoundText(code);
            showRecord(code);
        }
        return true;
    });
}

void RecordListForm::updateRecord() {
    Connection& connection = client_.HomeConnection;
    const RecordEdit edit{code_, shownTexts(), collected()};
    QString code;
    if (update({u"CheckData", [&] { checkRecord(connection, records_, edit); }},
               {records_.updateName, [&] { code = writeRecord(connection, records_, edit); }}))
        if (refresh(code) && edit.code == newCode()) recordMade();
}

void RecordListForm::removeRecord() {
    if (code_.isEmpty()) return;
    Connection& connection = client_.HomeConnection;
    const QString noun = text(records_.noun);
    const Removal removal{
        .reserved = code_ == newCode() ? text(records_.reserved.name) : QString(),
        .subject = noun,
        .failure = noun + QStringLiteral("の削除に失敗しました。"),
        .isUsed = [&] { return isUsedRecord(connection, records_, code_); },
        .remove = {records_.removeName, [&] { kurbo::removeRecord(connection, records_, code_); }},
    };
    if (removeSetting(client_.context, objectName(), removal)) (void)refresh(newCode());
}

// What has been typed meanwhile stays.
void RecordListForm::move(Direction direction) {
    if (code_.isEmpty()) return;
    const char16_t* const procedure = direction == Direction::Up ? u"cmdUp_Click" : u"cmdDown_Click";
    guarded(client_.context, objectName(), procedure, [&] {
        moveRecord(client_.HomeConnection, records_, code_, direction);
        controls_.list->setEntries(recordNames(client_.HomeConnection, records_));
    });
}

} // namespace kurbo
