#include "base/system/files.h"
#include "screen/files/archive.h"
#include "screen/files/grid_file.h"
#include "screen/grid/text_line.h"
#include "support/desk.h"

#include <QDir>

namespace kurbo::test {
namespace {

// A file that is there is removed first: cutting it short would wait for the disk.
void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    file.remove();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) ADD_FAILURE() << path;
}

// Whether the work ends in the complaint about a foreign file; any other failure goes on to the test.
bool refused(const std::function<void()>& work) {
    try {
        work();
    } catch (const Complaint& complaint) {
        EXPECT_EQ(complaint.description(), u"ファイル形式が異なります。"_q);
        return true;
    }
    return false;
}

// Every beginning of the bytes, and the bytes with one bit of each of some hundred places turned.
QList<QByteArray> damaged(const QByteArray& bytes) {
    QList<QByteArray> all;
    for (qsizetype size = 0; size < bytes.size(); ++size) all.append(bytes.left(size));
    const qsizetype step = bytes.size() / 400 + 1;
    for (qsizetype place = 0; place < bytes.size(); place += step) {
        all.append(bytes);
        all.back()[place] = static_cast<char>(bytes[place] ^ (1 << (place % 8)));
    }
    return all;
}

// A folder "work" with "Kurbo.tmp" and "Text.tmp", and an archive of both.
class ArchiveTest : public ::testing::Test {
  protected:
    ArchiveTest() {
        QDir(desk.folder.path()).mkdir(u"work"_q);
        add(u"Text.tmp"_q, "\"S01\"\r\n");
        add(u"Kurbo.tmp"_q, QByteArray("grid ").repeated(50));
        sound = readFile(archive);
    }
    void add(const QString& name, const QByteArray& bytes) {
        put(file(name), bytes);
        ArchiveAdd(archive, file(name));
        QFile::remove(file(name));
    }
    [[nodiscard]] QString file(const QString& name) const { return desk.file(u"work/"_q + name); }
    [[nodiscard]] QString names() const {
        QStringList all;
        for (int index = 0; index < ArchiveCount(archive); ++index) all.append(ArchiveName(archive, index));
        return all.join(u' ');
    }
    [[nodiscard]] QByteArray extracted(const QString& member) const {
        ArchiveExtract(archive, member, file(u"out"_q));
        return readFile(file(u"out"_q));
    }
    [[nodiscard]] QStringList files() const {
        return QDir(file({})).entryList(QDir::Files | QDir::Hidden) +
               QDir(desk.folder.path()).entryList(QDir::AllEntries | QDir::Hidden);
    }
    // Every operation on the archive, each of which may refuse.
    [[nodiscard]] int refusals() const {
        return refused([&] { (void)names(); }) + refused([&] { (void)extracted(u"Text.tmp"_q); }) +
               refused([&] { (void)extracted(u"Kurbo.tmp"_q); });
    }

    Desk desk;
    QString archive = file(u"a.krb"_q);
    QByteArray sound;
};

// Sets the bytes at an offset into each local header and, two further on, into each entry of the directory.
QByteArray patched(QByteArray bytes, int offset, const QByteArray& value) {
    for (const auto& [mark, from] : {std::pair{"PK\3\4", offset}, {"PK\1\2", offset + 2}})
        for (qsizetype at = bytes.indexOf(mark); at >= 0; at = bytes.indexOf(mark, at + 1))
            bytes.replace(at + from, value.size(), value);
    return bytes;
}

TEST_F(ArchiveTest, KeepsAndListsMembers) {
    add(u"Text.tmp"_q, "new");
    add(u"Kurbo.tmp"_q, "");
    add(u"Total.tmp"_q, QByteArray(100'000, 'x'));
    EXPECT_EQ(names(), u"Kurbo.tmp Total.tmp Text.tmp"_q) << "the text is last, though it was first";
    EXPECT_EQ(extracted(u"Text.tmp"_q) + '|' + extracted(u"Kurbo.tmp"_q), "new|");
    EXPECT_TRUE(refused([&] { (void)ArchiveName(archive, 3); }));
    EXPECT_THROW((void)ArchiveCount(file(u"missing"_q)), Fault);
    EXPECT_TRUE(refused([&] { add(u"a b.tmp"_q, "x"); }));
    sound = readFile(archive);
    put(file(u"Text.tmp"_q), "newer");
    {
        const AsNobody nobody;
        EXPECT_THROW(ArchiveAdd(archive, file(u"Text.tmp"_q)), Fault);
    }
    EXPECT_EQ(readFile(archive), sound);
}

TEST_F(ArchiveTest, HostileArchivesAreRefused) {
    const auto renamed = [&](const char* from, const QByteArray& to) { return QByteArray(sound).replace(from, to); };
    add(u"Test.tmp"_q, "x");
    QByteArray three = readFile(archive);
    const std::pair<const char*, QByteArray> cases[] = {
        {"folder above", renamed("Text.tmp", "../x.tmp")},
        {"backslash", renamed("Text.tmp", "..\\x.tmp")},
        {"folder", renamed("Text.tmp", "Textttt/")},
        {"one name twice", three.replace("Test.tmp", "Text.tmp")},
        {"encrypted", patched(sound, 6, QByteArray("\1", 1))},
        {"huge size", patched(sound, 22, "\xF0\xFF\xFF\x7F")},
        {"more than declared", patched(sound, 22, QByteArray("\1\0\0\0", 4))},
        {"wrong checksum", patched(sound, 14, "abcd")},
    };
    put(file(u"Text.tmp"_q), "new");
    const QStringList before = files();
    for (const auto& [what, bytes] : cases) {
        put(archive, bytes);
        EXPECT_GT(refusals(), 0) << what;
        EXPECT_TRUE(refused([&] { ArchiveAdd(archive, file(u"Text.tmp"_q)); })) << what;
        EXPECT_EQ(readFile(archive), bytes) << what;
        QFile::remove(file(u"out"_q));
        EXPECT_EQ(files(), before) << what;
    }
    put(archive, {});
    for (int member = 0; member < 16; ++member) add(u"m%1"_q.arg(member), "x");
    EXPECT_TRUE(refused([&] { add(u"m16"_q, "x"); })) << "too many";
    put(file(u"big"_q), {});
    EXPECT_TRUE(QFile::resize(file(u"big"_q), 48LL * 1024 * 1024));
    EXPECT_TRUE(refused([&] { ArchiveAdd(archive, file(u"big"_q)); })) << "too large together";
}

TEST_F(ArchiveTest, AnyDamageIsRefusedOrRead) {
    put(file(u"out"_q), {});
    const QStringList before = files();
    for (const QByteArray& bytes : damaged(sound)) {
        put(archive, bytes);
        EXPECT_TRUE(refusals() == 3 || bytes.isEmpty() || bytes.size() == sound.size()) << bytes.size();
        (void)refused([&] { ArchiveAdd(archive, file(u"out"_q)); });
        EXPECT_EQ(files(), before);
    }
}

void fillRichly(GridModel& grid) {
    grid.reset({.rows = 5, .columns = 4, .fixedRows = 2, .fixedColumns = 1, .frozenRows = 1, .frozenColumns = 2});
    grid.FormatString(u"日付|^方法|>金額|可"_q);
    grid.MergeHeadings(true);
    grid.ColComboList(1, u"|#0;毎週|#1;第１|その他"_q);
    grid.ColFormat(2, u"$#,###"_q);
    grid.ColEditMask(0, u"####/##/##"_q);
    grid.ColDataType(3, GridType::YesNo);
    grid.ColWidth(1, Twips(1234));
    grid.ColHidden(0, true);
    for (int row = 1; row < 5; ++row) grid.fillRow(row, {u"2026/05/01"_q, u"1"_q, u"-1234567"_q, u"-1"_q});
    grid.TextMatrix(4, 1, u"\"引用\"\r\n\t\\𠮷髙 "_q);
    grid.RowHidden(3, true);
    grid.RowBackColor(2, GridColour{255, 0, 128});
    grid.CellBackColor(2, 1, GridColour{1, 2, 3});
    grid.CellForeColor(4, 3, GridColour{255, 255, 255});
}

// All that a person sees of the grid, or could.
QVariantList picture(const GridModel& grid) {
    QVariantList seen{grid.FixedRows(), grid.FixedCols(), grid.FrozenRows(), grid.FrozenCols(), grid.MergeHeadings()};
    for (int column = 0; column < grid.Cols(); ++column)
        seen << grid.ColWidth(column).count() << grid.ColHidden(column) << static_cast<int>(grid.ColDataType(column))
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
    grid.TextMatrix(1, 1, QString(40'000, u'x'));
    EXPECT_THROW(SaveGrid(grid, file), Complaint);
    EXPECT_EQ(readFile(file), sound) << "a failed save keeps the old file";
}

TEST_F(GridFile, OtherFilesAreRefused) {
    const std::pair<const char*, QByteArray> cases[] = {
        {"kurbo-grid", "other-grid"},
        {"\"version\":1", "\"version\":2"},
        {"\"frozenColumns\":2", "\"frozenColumns\":4"},
        {"\"type\":11", "\"type\":9"},
        {"[2,1,null,[1,2,3]]", "[2,4,null,[1,2,3]]"},
        {"\"日付\",", ""},
        {"日付", QByteArray(40'000, 'x')},
        {"\"rows\":[", "\"rows\":[" + QByteArray("[\"\",\"\",\"\",\"\"],").repeated(200'001)},
        {"\"columns\":[", "\"columns\":[" + QByteArray("{},").repeated(65)},
    };
    for (const auto& [part, other] : cases) {
        EXPECT_TRUE(sound.contains(part)) << part;
        EXPECT_TRUE(refuses(QByteArray(sound).replace(part, other))) << other.left(40).constData();
    }
    for (const QByteArray& bytes : damaged(sound)) {
        EXPECT_TRUE(refuses(bytes) || bytes.size() == sound.size()) << "a part was taken for the whole";
        fillRichly(grid);
    }
    EXPECT_TRUE(QFile::resize(file, 1LL << 40));
    EXPECT_TRUE(refused([&] { LoadGrid(grid, file); })) << "too large";
}

TEST(TextLine, FieldsComeBackAndOtherLinesAreRefused) {
    const Desk desk;
    const QString file = desk.file(u"Text.tmp"_q);
    const QStringList fields{u""_q, u"a\"b,\"\""_q, u"部課表ソ"_q, u"\""_q};
    writeTextLine(file, fields);
    for (const QString& field : {u"髙𠮷"_q, u"〜"_q, u"a\r\nb"_q})
        EXPECT_TRUE(refused([&] { writeTextLine(file, {field}); })) << field;
    EXPECT_EQ(readFile(file), "\"\",\"a\"\"b,\"\"\"\"\",\"\x95\x94\x89\xDB\x95\x5C\x83\x5C\",\"\"\"\"\r\n");
    EXPECT_EQ(readTextLine(file, 4), fields);
    for (const char* line : {"", "\"a\"", "\"a\",\"b\",\"c\"", "\"a\",b", "\"a\",\"b", "\"a\";\"b\"",
                             "\"a\",\"b\"\r\n\r\n", "\"a\" ,\"b\"", "\"a\",\"b\nc\"", "\"a\",\"\xFF\xFF\""}) {
        put(file, line);
        EXPECT_TRUE(refused([&] { (void)readTextLine(file, 2); })) << line;
    }
}

} // namespace
} // namespace kurbo::test
