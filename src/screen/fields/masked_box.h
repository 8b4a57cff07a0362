#pragma once

#include "base/day.h"
#include "base/prompts.h"

#include <QLineEdit>

namespace kurbo {

class LeaveCheck;

// A box with a fixed form for a date "yyyy/mm/dd", a month "yyyy/mm" or a time "hh:mm", into which digits are typed.
// The click or the key that brings the focus selects all of it.
class MaskedBox final : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(Kind kind READ kind WRITE setKind)

  public:
    enum Kind { Date, Month, Time };
    Q_ENUM(Kind)

    explicit MaskedBox(QWidget* parent = nullptr);

    [[nodiscard]] Kind kind() const { return kind_; }
    // Empties the box.
    void setKind(Kind kind);

    // What is seen, with "_" for each missing digit ("____/__/__"); text() leaves these out.
    [[nodiscard]] QString maskText() const { return displayText(); }
    [[nodiscard]] bool isBlank() const;
    // Whether all digits are there and make a date, a month or a time of day.
    [[nodiscard]] bool isValid() const;
    // The date, or the first day of the month; nothing for any other text, and in a time box.
    [[nodiscard]] std::optional<Day> day() const;
    // Writes the date, or its month. A time box stays as it is.
    void setDay(Day day);

    // From now on a person can't leave the box for another field while it holds a text that is not valid; the message
    // says so.
    void setRefusal(const QString& message, Prompts& prompts);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    Kind kind_ = Date;
    LeaveCheck* check_ = nullptr;
    // The click that is under way has brought the focus.
    bool entering_ = false;
};

} // namespace kurbo
