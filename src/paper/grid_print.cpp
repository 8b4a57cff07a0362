#include "paper/grid_print.h"

#include "paper/frmPreview.h"
#include "paper/grid_pages.h"

namespace kurbo {

void PrintGrid(const GridModel& grid, const QString& documentName, Client& client, QWidget* parent) {
    guarded(client.context, u"basGrid", u"PrintGrid", [&] {
        showPreview(std::make_unique<GridPages>(grid, documentName, slashDate(client.context.clock.today())), client,
                    parent);
    });
}

} // namespace kurbo
