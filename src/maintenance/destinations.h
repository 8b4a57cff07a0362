#pragma once

#include "screen/grid/grid_model.h"
#include "store/client.h"

namespace kurbo {

// Rows of a grid, both ends included.
struct RowSpan {
    int first = 0;
    int last = 0;
};

// Fills the grid with the destinations that no outing refers to: those of the person, or of everybody for the
// administrator, who sees the person's name as well. False after a reported failure.
[[nodiscard]] bool ShowDestination(const Context& context, Connection& connection, const QString& user,
                                   GridModel& grid);

// Deletes the destinations in these rows, all or none. False after a reported failure.
[[nodiscard]] bool DeleteDestination(const Context& context, Connection& connection, const GridModel& grid,
                                     RowSpan rows);

// The list of the person who is logged in, and the command to delete from it.
class DestinationList final {
  public:
    explicit DestinationList(Client& client) : client_(client) {}

    GridModel grid;
    [[nodiscard]] bool show();
    // The rows that a selection means: all of them where it begins or ends at the headings. Nothing after a refusal.
    [[nodiscard]] std::optional<RowSpan> chosenRows(RowSpan selected) const;
    // Asks, deletes, and shows what is left.
    // True once they are gone.
    bool remove(RowSpan rows);

  private:
    Client& client_;
};

} // namespace kurbo
