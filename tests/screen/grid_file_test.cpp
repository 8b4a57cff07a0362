#include "screen/damage.h"
#include "screen/files/grid_file.h"

#include "base/system/files.h"

namespace kurbo::test {
namespace {

void fillRichly(GridModel& grid) {
    grid.reset({.rows = 5, .columns = 4, .fixedRows = 2, .fixedColumns = 1, .frozenRows = 1, .frozenColumns = 2});
    grid.FormatString(u"日付|^方法|>金額|可"_q);
    grid.MergeHeadings(true);
    grid.ColComboList(1, u"|#0;毎週|#1;第１|その他"_q);
    grid.ColFormat(2, u"$#,###"_q);
    grid.ColEditMask(0, u"####/##/##"_q);
    grid.ColDataType(3, GridType::YesNo);
    grid.ColWidth(1, 1234);
    grid.ColHidden(0, true);
    for (int row = 1; row < 5; ++row) grid.fillRow(row, {u"2026/05/01"_q, u"1"_q, u"-1234567"_q, u"-1"_q});
    grid.TextMatrix(4, 1, u"\"引用\"\r\n\t\\𠮷髙 "_q);
    grid.RowHidden(3, true);
    grid.RowBackColor(2, GridColour{255, 0, 128});
    grid.RowForeColor(2, GridColour{0, 0, 255});
    grid.CellBackColor(2, 1, GridColour{1, 2, 3});
    grid.CellForeColor(4, 3, GridColour{255, 255, 255});
}

// All that a person sees of the grid, or could.
QVariantList picture(const GridModel& grid) {
    QVariantList seen{grid.FixedRows(), grid.FixedCols(), grid.FrozenRows(), grid.FrozenCols(), grid.MergeHeadings()};
    for (int column = 0; column < grid.Cols(); ++column)
        seen << grid.ColWidth(column) << grid.ColHidden(column) << static_cast<int>(grid.ColDataType(column))
             << grid.ColEditMask(column) << grid.ColComboList(column).source();
    for (int row = 0; row < grid.Rows(); ++row) {
        seen << grid.RowHidden(row);
        for (int column = 0; column < grid.Cols(); ++column)
            for (const int role :
                 {int(Qt::DisplayRole), int(Qt::EditRole), int(Qt::CheckStateRole), int(GridModel::ForeColourRole),
                  int(GridModel::BackColourRole), int(GridModel::AlignRole)})
                seen << grid.data(grid.index(row, column), role);
    }
    return seen;
}

class GridFile : public ::testing::Test {
  protected:
    GridFile() {
        fillRichly(grid);
        SaveGrid(grid, file);
        sound = readFile(file);
    }
    // Whether the bytes are refused; the grid then is as it was.
    [[nodiscard]] bool refuses(const QByteArray& bytes) {
        const QVariantList before = picture(grid);
        put(file, bytes);
        const bool stopped = refused([&] { LoadGrid(grid, file); });
        EXPECT_TRUE(!stopped || picture(grid) == before);
        return stopped;
    }

    Desk desk;
    GridModel grid;
    QString file = desk.file(u"Kurbo.tmp"_q);
    QByteArray sound;
};

TEST_F(GridFile, AGridComesBackAsItWas) {
    GridModel other;
    other.reset({.rows = 2, .columns = 9});
    LoadGrid(other, file);
    EXPECT_EQ(picture(other), picture(grid));
    EXPECT_EQ(other.CellText(2, 1) + other.CellText(2, 2), u"第１-¥1,234,567"_q);
    EXPECT_EQ(other.RowStatus(4), GridStatus::None);
    grid.TextMatrix(1, 1, QString(40'000, u'x'));
    EXPECT_THROW(SaveGrid(grid, file), Complaint);
    EXPECT_EQ(readFile(file), sound) << "a failed save keeps the old file";
    SaveGrid(GridModel(), file);
    LoadGrid(other, file);
    EXPECT_EQ(other.Rows() + other.Cols(), 0);
}

TEST_F(GridFile, OtherFilesAreRefused) {
    const std::pair<const char*, QByteArray> cases[] = {
        {"kurbo-grid", "other-grid"},
        {"\"version\":1", "\"version\":2"},
        {"\"fixedRows\":2", "\"fixedRows\":6"},
        {"\"frozenColumns\":2", "\"frozenColumns\":4"},
        {"\"hiddenRows\":[3]", "\"hiddenRows\":[5]"},
        {"\"type\":11", "\"type\":9"},
        {"[2,1,null,[1,2,3]]", "[2,4,null,[1,2,3]]"},
        {"[1,2,3]", "[1,2,256]"},
        {"\"日付\",", ""},
        {"日付", "\xFF"},
        {"日付", QByteArray(40'000, 'x')},
        {"\"rows\":[", "\"rows\":[" + QByteArray("[\"\",\"\",\"\",\"\"],").repeated(200'001)},
        {"\"columns\":[", "\"columns\":[" + QByteArray("{},").repeated(65)},
    };
    for (const auto& [part, other] : cases) {
        EXPECT_TRUE(sound.contains(part)) << part;
        EXPECT_TRUE(refuses(QByteArray(sound).replace(part, other))) << other.left(40).constData();
    }
    EXPECT_TRUE(refuses(QByteArray("[").repeated(100'000)));
    EXPECT_TRUE(QFile::resize(file, 1LL << 40));
    EXPECT_TRUE(refused([&] { LoadGrid(grid, file); })) << "too large";
    EXPECT_THROW(LoadGrid(grid, desk.file(u"missing"_q)), Fault);
}

TEST_F(GridFile, AnyDamageIsRefusedOrLoaded) {
    for (const QByteArray& bytes : damaged(sound)) {
        EXPECT_TRUE(refuses(bytes) || bytes.size() == sound.size()) << "a part was taken for the whole";
        fillRichly(grid);
    }
}

} // namespace
} // namespace kurbo::test
