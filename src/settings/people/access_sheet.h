#pragma once

#include "engine/work_time.h"
#include "screen/grid/grid_model.h"
#include "store/readers.h"

#include <functional>

namespace kurbo {

// An access right is a set of rows of one code and name: a row for each section, or for the own one ("MySection").

enum class AccessColumn { No, Code, Name, Section, FirstRight, LastRight = 24, Order };
inline constexpr int accessColumns = 26;
inline constexpr int firstAccessRow = 2;

// Stands for a right that is still to be made.
[[nodiscard]] QString newAccessName();
[[nodiscard]] QString deletedAccessText();

// The rows of the shown right, as they stand on the screen.
struct AccessSheet {
    GridModel grid;
    // Told after every edit.
    std::function<void()> onEdit;

    // The section's code; empty on an unused row.
    [[nodiscard]] QString sectionOf(int row) const;
};

// The cells: a section of the list, and boxes.
class AccessRules final : public GridRules {
  public:
    explicit AccessRules(AccessSheet& sheet) : sheet_(sheet) {}

    [[nodiscard]] bool mayEdit(int row, int column) const override;
    [[nodiscard]] QString refusal(int row, int column, const QString& text) const override;
    void edited(int row, int column) override;
    [[nodiscard]] QString tip(int row, int column) const override;

  private:
    AccessSheet& sheet_;
};

// The stored rights in the order of their codes, the new one first. Throws, as all that follows.
[[nodiscard]] QList<CodeName> accessNames(Connection& connection);
// The list of the section column.
[[nodiscard]] QString accessSections(Connection& connection);
// Fills the grid with a right's rows and 20 empty ones. Columns of leaves that the company doesn't use are hidden.
void ShowAccess(Connection& connection, int code, const clsWorkTime& style, AccessSheet& sheet);

// Throws the complaint of the first rule that fails. The code is 0 for a new right.
void checkAccess(Connection& connection, int code, const QString& name, const AccessSheet& sheet);
[[nodiscard]] QString accessNameRefusal(const QString& name);
[[nodiscard]] int GetNextAccessCode(Connection& connection);
// Replaces all rows of the right, or makes a new one for the code 0; gives its code. A right in a hidden column is
// taken away. Complains when another client has deleted the right meanwhile.
[[nodiscard]] int UpdateAccess(Connection& connection, int code, const QString& name, const AccessSheet& sheet);
// Whether somebody has the right.
[[nodiscard]] bool IsUsedAccess(Connection& connection, int code);
// Complains when somebody has been given the right meanwhile.
void DeleteAccess(Connection& connection, int code);

} // namespace kurbo
