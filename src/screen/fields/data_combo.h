#pragma once

#include "store/readers.h"

#include <QComboBox>

namespace kurbo {

// A list in which a code is chosen by its name, or typed. The text stays as the person typed it.
class DataCombo final : public QComboBox {
    Q_OBJECT

  public:
    explicit DataCombo(QWidget* parent = nullptr);

    // Replaces the list and keeps the text.
    void setEntries(const QList<CodeName>& entries);
    // The code of the shown entry; the typed text itself when it is not in the list.
    [[nodiscard]] QString boundText() const;
    // Shows the entry of the code, or the code itself when the list lacks it.
    void setBoundText(const QString& code);
    [[nodiscard]] bool isInList() const { return shownEntry() >= 0; }

  protected:
    void wheelEvent(QWheelEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    [[nodiscard]] int shownEntry() const;

    QList<CodeName> entries_;
};

} // namespace kurbo
