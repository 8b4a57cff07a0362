// From the choice of a person to the painted card, against the bare reading of the same rows and an empty table of the
// toolkit, of the same size, painted. Both windows are offscreen.

#include "bare_card.h"

#include "card/frmKurbo.h"
#include "screen/fields/data_combo.h"
#include "screen/grid/grid.h"
#include "shell/application.h"

#include <QApplication>
#include <QHeaderView>
#include <QStandardItemModel>

#include <cstdio>

namespace {

using namespace kurbo;
using namespace kurbo::bench;

constexpr int rounds = 400;

// A table as empty as the card is full.
class EmptyTable final : public QAbstractTableModel {
  public:
    [[nodiscard]] int rowCount(const QModelIndex& /*parent*/) const override { return 34; }
    [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override { return 21; }
    [[nodiscard]] QVariant data(const QModelIndex& /*index*/, int /*role*/) const override { return {}; }
    void fill() {
        beginResetModel();
        endResetModel();
    }
};

Samples bare(const QSize& size) {
    BareReader reader(companyFile());
    EmptyTable empty;
    QTableView table;
    table.setModel(&empty);
    table.horizontalHeader()->setDefaultSectionSize(60);
    table.verticalHeader()->setDefaultSectionSize(21);
    table.resize(size);
    table.show();
    QApplication::processEvents();
    Samples samples;
    for (int round = 0; round < rounds; ++round)
        samples.add(timed([&] {
            (void)reader.read(QByteArray::number(1001 + round % people));
            empty.fill();
            QApplication::processEvents();
            table.viewport()->repaint();
        }));
    return samples;
}

// The people of the section that is shown.
Samples card(Client& client, QSize& size) {
    frmKurbo form(client);
    form.load();
    form.show();
    QApplication::processEvents();
    auto* const names = form.findChild<DataCombo*>(QStringLiteral("dcbStaff"));
    auto* const grid = form.findChild<Grid*>(QStringLiteral("vfgKurbo"));
    size = grid->size();
    Samples samples;
    for (int round = 0; round < rounds; ++round)
        samples.add(timed([&] {
            names->setCurrentIndex(round % names->count());
            Q_EMIT names->activated(names->currentIndex());
            QApplication::processEvents();
            grid->viewport()->repaint();
        }));
    return samples;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    dress(application);
    const QTemporaryDir folder;
    Office office(folder.path());
    office.clock.set(at(*makeDay(2026, 6, 17), 9, 0));
    Client client(office.context);
    client.DbPath = companyFile();
    client.openHome();
    client.session.SessionSection = QStringLiteral("S01");
    client.session.SessionStaff = QStringLiteral("1001");
    if (!GetAccess(office.context, client.HomeConnection, client.session.SessionStaff, mySection(),
                   client.session.access))
        return 1;
    QSize size;
    Samples ours = card(client, size);
    Samples theirs = bare(size);
    for (const double percent : {50.0, 95.0})
        std::printf("%2.0f%%: card %.0f us, bare %.0f us, ratio %.2f (limit 2)\n", percent, ours.at(percent),
                    theirs.at(percent), ours.at(percent) / theirs.at(percent));
    return 0;
}
