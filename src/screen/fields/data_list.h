#pragma once

#include "store/readers.h"

#include <QListWidget>

namespace kurbo {

// A list of names, one of which is chosen; each stands for a code.
class DataList final : public QListWidget {
    Q_OBJECT

  public:
    explicit DataList(QWidget* parent = nullptr);

    // Replaces the list. The chosen code stays chosen while it is there; else nothing is.
    void setEntries(const QList<CodeName>& entries);
    [[nodiscard]] const QList<CodeName>& entries() const { return entries_; }
    // Code and name of the chosen entry, empty without one.
    [[nodiscard]] QString boundText() const;
    [[nodiscard]] QString text() const;
    // Chooses the entry of the code, or nothing when the list lacks it.
    void setBoundText(const QString& code);

  Q_SIGNALS:
    // The person, not the program, has chosen another entry. Comes when the click or key is over.
    void chosen();

  private:
    QList<CodeName> entries_;
    bool filling_ = false;
};

} // namespace kurbo
