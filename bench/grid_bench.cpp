// A grid of 12,000 rows and 27 columns: the first picture after it is filled, and each page on the way down, against
// the toolkit's own table on the same cells. Both are offscreen.

#include "bench_company.h"

#include "screen/grid/grid.h"
#include "shell/application.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

#include <cstdio>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int rows = 12000;
constexpr int columns = 27;
constexpr int pages = 200;

void fill(GridModel& cells) {
    const Undrawn undrawn(cells);
    cells.reset({.rows = 1 + rows, .columns = columns, .frozenColumns = 2});
    for (int column = 0; column < columns; ++column) cells.ColWidth(column, Twips(900));
    for (int row = 1; row <= rows; ++row)
        cells.fillRow(row, QStringList(columns, QString::number(row % 200) + QStringLiteral(":30")));
}

struct Times {
    double filled = 0;
    Samples paged;
};

Times timesOf(QTableView& table, GridModel& cells) {
    table.resize(1300, 560);
    table.show();
    QApplication::processEvents();
    Times times;
    const auto picture = [&table] {
        QApplication::processEvents();
        table.viewport()->repaint();
    };
    times.filled = timed([&] {
        fill(cells);
        picture();
    });
    QScrollBar& bar = *table.verticalScrollBar();
    for (int page = 1; page <= pages; ++page)
        times.paged.add(timed([&] {
            bar.setValue(bar.maximum() / pages * page);
            picture();
        }));
    return times;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    dress(application);
    const QTemporaryDir folder;
    Office office(folder.path());
    GridModel ownCells;
    Grid grid;
    grid.setGrid(ownCells, office.context);
    Times own = timesOf(grid, ownCells);
    GridModel bareCells;
    QTableView table;
    table.setFont(grid.font());
    table.setModel(&bareCells);
    table.verticalHeader()->setDefaultSectionSize(21);
    Times bare = timesOf(table, bareCells);
    std::printf("filled and painted: %.2f times the toolkit's table\n", own.filled / bare.filled);
    std::printf("a page further: %.2f times in the middle, %.2f at the 95th of 100\n",
                own.paged.at(50) / bare.paged.at(50), own.paged.at(95) / bare.paged.at(95));
    return 0;
}
