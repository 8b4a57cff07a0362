#pragma once

#include <QString>

namespace kurbo {

// What a screen decides about the cells of its grid. Rows and columns count from 0.
class GridRules {
  public:
    virtual ~GridRules() = default;

    // Whether the person may change the cell now.
    [[nodiscard]] virtual bool mayEdit(int row, int column) const = 0;
    // The drop-down list of a cell that is about to be edited; empty for a plain text field.
    [[nodiscard]] virtual QString comboList(int /*row*/, int /*column*/) const { return {}; }
    // Why a typed text, trimmed and not empty, can't be taken; empty when it can.
    [[nodiscard]] virtual QString refusal(int /*row*/, int /*column*/, const QString& /*text*/) const { return {}; }
    // Whether a click may open the cell's editor; typing and F2 always do.
    [[nodiscard]] virtual bool opensByClick(int /*row*/, int /*column*/) const { return true; }
    // The person has changed the cell, by typing, pasting or clearing.
    virtual void edited(int /*row*/, int /*column*/) {}
    // Shown where the mouse rests, and while the list is scrolled.
    [[nodiscard]] virtual QString tip(int /*row*/, int /*column*/) const { return {}; }
    [[nodiscard]] virtual QString scrollTip(int /*row*/) const { return {}; }
    // What is told to who types on a cell that can't be edited.
    [[nodiscard]] virtual QString closedTip(int row, int column) const { return tip(row, column); }
    // Whether the column takes Japanese text.
    [[nodiscard]] virtual bool isJapanese(int /*column*/) const { return false; }
};

} // namespace kurbo
