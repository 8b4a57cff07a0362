#include "fuzz/targets.h"

#include "base/failure.h"
#include "base/system/files.h"
#include "screen/files/archive.h"
#include "screen/files/grid_file.h"
#include "totals/csv/csv_record.h"

#include <QFile>
#include <QTemporaryDir>

#include <stdexcept>

namespace kurbo::test {
namespace {

// A folder of this process, in which the readers find the bytes as a file.
QString inFolder(const QString& name) {
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

QString fileOf(const QByteArray& bytes) {
    const QString path = inFolder(QStringLiteral("input"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size())
        throw std::logic_error("the input file can't be written");
    return path;
}

void must(bool holds, const char* what) {
    if (!holds) throw std::logic_error(what);
}

// False when the bytes are refused in the reader's own words.
template <typename Read>
bool reads(Read read) {
    try {
        read();
    } catch (const Complaint& complaint) {
        must(!complaint.description().isEmpty(), "a refusal without a word");
        return false;
    }
    return true;
}

} // namespace

void fuzzCsv(const QByteArray& bytes) {
    QList<MonthRecord> months;
    if (!reads([&] { months = readCsv(bytes, QStringLiteral("file")); })) return;
    // Some letters have two codes; the one of this system comes back.
    QByteArray written;
    if (!reads([&] { written = csvBytes(months); })) throw std::logic_error("what was read can't be written");
    must(readCsv(written, QStringLiteral("file")) == months, "what was written reads as something else");
    must(csvBytes(months) == written, "it is written in two ways");
}

void fuzzGrid(const QByteArray& bytes) {
    GridModel grid;
    const QString path = fileOf(bytes);
    if (!reads([&] { LoadGrid(grid, path); })) return must(grid.Rows() == 0, "a refused file has filled the grid");
    const QString copy = inFolder(QStringLiteral("copy"));
    if (!reads([&] { SaveGrid(grid, copy); })) return;
    GridModel again;
    LoadGrid(again, copy);
    const QByteArray first = readFile(copy);
    SaveGrid(again, copy);
    must(readFile(copy) == first, "what was saved loads as something else");
    for (int row = 0; row < grid.Rows(); ++row)
        for (int column = 0; column < grid.Cols(); ++column) (void)grid.CellText(row, column);
}

void fuzzArchive(const QByteArray& bytes) {
    const QString archive = fileOf(bytes);
    int count = 0;
    if (!reads([&] { count = ArchiveCount(archive); })) return;
    const QString member = inFolder(QStringLiteral("member"));
    bool whole = true;
    for (int i = 0; i < count; ++i) {
        const QString name = ArchiveName(archive, i);
        must(!name.contains(u'/') && !name.startsWith(u'.'), "a member's name leads out of the folder");
        whole = reads([&] { ArchiveExtract(archive, name, member); }) && whole;
    }
    if (!whole || count == 0) return;
    const bool added = reads([&] { ArchiveAdd(archive, member); });
    if (added) must(ArchiveCount(archive) >= count, "adding has lost a member");
}

} // namespace kurbo::test
