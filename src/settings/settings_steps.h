#pragma once

#include "base/guard.h"

#include <QString>

#include <functional>

namespace kurbo {

// What all settings screens do in the same way. Failures are reported under the form's name.

// A procedure by its name, which throws its complaint or fault.
struct SettingsStep {
    const char16_t* procedure;
    std::function<void()> body;
};

// Where on the screen a check has found its fault: a control by its name, and the cell where that is a grid.
struct FieldPlace {
    QString control;
    int row = -1;
    int column = -1;
};

// A complaint that can be put right in one place.
class FieldComplaint final : public Complaint {
  public:
    FieldComplaint(const QString& description, FieldPlace place) : Complaint(description), place_(std::move(place)) {}
    [[nodiscard]] const FieldPlace& place() const { return place_; }

  private:
    FieldPlace place_;
};

// Asks whether the changes of `subject` are given up; true when there are none.
[[nodiscard]] bool mayDiscard(Prompts& prompts, bool changed, const QString& subject);

// Checks, asks and writes. True once it is written; whatever kept it from that has been told.
[[nodiscard]] bool updateSettings(const Context& context, QStringView form, const SettingsStep& check,
                                  const SettingsStep& write);

// The record that a list shows, to be taken away.
struct Removal {
    QString reserved; // the name, in the brackets that its message has, of a record that has to stay; else empty
    QString subject;  // what is shown: "表示されている<subject>..."
    QString failure;  // what is told when the store refuses
    std::function<bool()> isUsed;
    SettingsStep remove;
};
// True once it is gone; whatever kept it from that has been told.
[[nodiscard]] bool removeSetting(const Context& context, QStringView form, const Removal& removal);

} // namespace kurbo
