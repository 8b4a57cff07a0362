#pragma once

#include "settings/records/record_form.h"
#include "settings/records/record_list.h"

namespace kurbo {

class DataList;

// The controls by which records are chosen and changed.
struct RecordListControls {
    DataList* list;
    QWidget* record; // the fields
    QAbstractButton* up;
    QAbstractButton* down;
    QAbstractButton* update;
    QAbstractButton* print;
};

// A settings screen of records in a list.
class RecordListForm : public RecordForm {
    Q_OBJECT

  protected:
    RecordListForm(Client& client, QWidget* parent, const RecordList& list);

    // Once the controls are there; connects them and mnuUpdate, mnuPrint and mnuDelete.
    void dressList(const QString& title, const QString& subject, const RecordListControls& controls);
    void readAll() override;
    // After a record has been shown.
    virtual void recordShown() {}
    // After a new record has been stored and shown.
    virtual void recordMade() {}

  private:
    void choose();
    void showRecord(const QString& code);
    void showNew();
    [[nodiscard]] bool refresh(const QString& code);
    void updateRecord();
    void removeRecord();
    void move(Direction direction);

    const RecordList& records_;
    QString subject_;
    RecordListControls controls_{};
    QString code_; // of the record that is shown; empty without one
};

} // namespace kurbo
