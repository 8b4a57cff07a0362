#include "screen/files/card_file.h"

#include "base/system/files.h"
#include "screen/files/archive.h"
#include "screen/files/foreign_file.h"
#include "screen/files/grid_file.h"
#include "screen/grid/text_line.h"

#include <QFile>
#include <QTemporaryDir>

namespace kurbo {
namespace {

constexpr int members = 2;
constexpr int texts = 4;

QString textMember() {
    return QStringLiteral("Text.tmp");
}

void checkMembers(const QString& archive, const QString& member) {
    if (ArchiveCount(archive) != members || ArchiveName(archive, 0) != member ||
        ArchiveName(archive, 1) != textMember())
        throw foreignFile();
}

} // namespace

QString fileModeText(const QString& command) {
    return QStringLiteral("タイムカードファイルを呼出した状態で%1はできません。").arg(command);
}

bool refusesFileMode(Prompts& prompts, bool blnFileMode, const QString& command) {
    if (blnFileMode) prompts.exclaim(fileModeText(command));
    return blnFileMode;
}

QString cardFileFilter() {
    return QStringLiteral("ﾀｲﾑｶｰﾄﾞﾌｧｲﾙ(*.krb)|*.krb");
}

void saveCardFile(const QString& file, const QString& member, const GridModel& grid, const QStringList& selection) {
    const QTemporaryDir scratch;
    const QString archive = scratch.filePath(QStringLiteral("card.krb"));
    const QString text = scratch.filePath(textMember());
    const QString image = scratch.filePath(member);
    writeTextLine(text, selection);
    SaveGrid(grid, image);
    if (QFile::exists(file)) replaceFile(archive, readFile(file));
    ArchiveAdd(archive, text);
    ArchiveAdd(archive, image);
    checkMembers(archive, member);
    replaceFile(chosenFile(file), readFile(archive));
}

QStringList loadCardFile(const QString& file, const QString& member, int columns, GridModel& grid,
                         const CheckSelection& check) {
    checkMembers(file, member);
    const QTemporaryDir scratch;
    const QString text = scratch.filePath(textMember());
    const QString image = scratch.filePath(member);
    ArchiveExtract(file, textMember(), text);
    ArchiveExtract(file, member, image);
    QStringList selection = readTextLine(text, texts);
    GridModel first;
    LoadGrid(first, image);
    if (first.Cols() != columns) throw foreignFile();
    if (check) check(selection);
    LoadGrid(grid, image);
    return selection;
}

} // namespace kurbo
