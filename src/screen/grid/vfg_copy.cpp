#include "screen/grid/vfg_copy.h"

#include "base/failure.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace kurbo {
namespace {

// What the last mnuGCopy took, as it is held.
QString& rawBuffer() {
    static QString buffer;
    return buffer;
}

QString clipboardText() {
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    if (!data || !data->hasText()) throw Complaint(QStringLiteral("テキスト以外のデータを貼付ける事はできません。"));
    return data->text();
}

void paste(Grid& grid, const QString& givenText) {
    const QString clipped = clipboardText();
    pasteCells(*grid.grid(), grid.GetSelection(), givenText.isEmpty() ? clipped : givenText);
}

// Of the grids on several pages that share a menu, the one in view.
bool isMeant(Grid& grid) {
    return grid.isVisible() && grid.finishEdit();
}

} // namespace

void VfgCopy(const Grid& grid, bool withRaw, QString& rawText) {
    const GridCopy copy = copiedCells(*grid.grid(), grid.GetSelection());
    if (withRaw) rawText = copy.held;
    QGuiApplication::clipboard()->setText(copy.shown);
}

bool VfgPaste(const Context& context, Grid& grid, const QString& givenText) {
    return guarded(context, u"basSTD", u"VfgPaste", false, [&] {
        paste(grid, givenText);
        return true;
    });
}

void wireGridMenu(Grid& grid, const Context& context, QMenu* mnuGrid, QAction* mnuGCopy, QAction* mnuGPaste,
                  QAction* mnuGClear) {
    grid.setGridMenu(mnuGrid);
    QObject::connect(mnuGCopy, &QAction::triggered, &grid, [&grid] {
        if (isMeant(grid)) VfgCopy(grid, true, rawBuffer());
    });
    QObject::connect(mnuGPaste, &QAction::triggered, &grid, [&grid, &context] {
        if (isMeant(grid)) VfgPaste(context, grid, rawBuffer());
    });
    QObject::connect(mnuGClear, &QAction::triggered, &grid, [&grid] {
        if (isMeant(grid)) clearCells(*grid.grid(), grid.GetSelection());
    });
}

} // namespace kurbo
