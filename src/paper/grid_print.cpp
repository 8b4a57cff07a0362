#include "paper/grid_print.h"

#include "paper/frmPreview.h"
#include "paper/grid_pages.h"

namespace kurbo {

void PrintGrid(const GridModel& grid, const QString& documentName, const Context& context, QWidget* parent) {
    guarded(context, u"basGrid", u"PrintGrid", [&] {
        showPreview(std::make_unique<GridPages>(grid, documentName, slashDate(context.clock.today())), context, parent);
    });
}

} // namespace kurbo
