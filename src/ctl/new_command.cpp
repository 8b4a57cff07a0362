#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/options.h"
#include "store/file/database_file.h"

#include <QFileInfo>

namespace kurbo {
namespace {

Exit runNew(const Options& options) {
    refuseExisting(options.argument(0));
    createDatabase(options.argument(0));
    return Exit::Done;
}

} // namespace

const Command newCommand{
    .name = u"new",
    .run = runNew,
    .arguments = u"FILE",
    .summary = u"Makes an empty database.",
    .more = u"It has the reserved records and the administrator's password ADMIN.\n"
            u"A file that is there already is refused.",
    .options = {},
    .example = u"new store.mdb",
};

void refuseExisting(const QString& path) {
    if (QFileInfo::exists(path))
        throw Complaint(
            lines(QStringLiteral("ファイルが既に存在します。"), path, QStringLiteral("別の名前を指定して下さい。")));
}

} // namespace kurbo
