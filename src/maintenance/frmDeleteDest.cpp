#include "maintenance/frmDeleteDest.h"

#include "screen/windows/show_now.h"
#include "ui_frmDeleteDest.h"

#include <QItemSelectionModel>

namespace kurbo {

frmDeleteDest::frmDeleteDest(Client& client, QWidget* parent)
    : ScreenForm(client, parent), ui_(std::make_unique<Ui::frmDeleteDest>()), list_(client) {
    ui_->setupUi(this);
    dress(QStringLiteral("外出先削除"));
    ui_->vfgDestination->setGrid(list_.grid, client_.context);
    ui_->vfgDestination->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui_->vfgDestination->setSelectionMode(QAbstractItemView::ContiguousSelection);
    onCommand(ui_->cmdExec, nullptr, [this] { deleteChosen(); });
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &QWidget::close);
    fillScreen(this, {560, 560});
}

frmDeleteDest::~frmDeleteDest() {
    putAway();
}

bool frmDeleteDest::hasConnection() {
    return client_.hasHome(objectName());
}

void frmDeleteDest::load() {
    run([this] { ui_->cmdExec->setEnabled(list_.show()); });
    ui_->vfgDestination->clearSelection();
    ui_->vfgDestination->setStretchColumn(list_.grid.Cols() - 1);
    ui_->vfgDestination->setFocus();
}

RowSpan frmDeleteDest::selectedRows() const {
    if (!ui_->vfgDestination->selectionModel()->hasSelection()) return {};
    const GridSelection selected = ui_->vfgDestination->GetSelection();
    return {selected.top, selected.bottom};
}

void frmDeleteDest::select(RowSpan rows) {
    const GridModel& grid = list_.grid;
    ui_->vfgDestination->selectionModel()->select({grid.index(rows.first, 0), grid.index(rows.last, grid.Cols() - 1)},
                                                  QItemSelectionModel::ClearAndSelect);
}

void frmDeleteDest::deleteChosen() {
    const bool chosen = ui_->vfgDestination->selectionModel()->hasSelection();
    const auto rows = list_.chosenRows(selectedRows());
    if (!rows) return;
    select(*rows);
    if (list_.remove(*rows) || !chosen) ui_->vfgDestination->clearSelection();
}

} // namespace kurbo
