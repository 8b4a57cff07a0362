#include "ctl/commands.h"
#include "ctl/console.h"
#include "ctl/options.h"
#include "store/database_file.h"

#include <QFileInfo>

namespace kurbo {

void refuseExisting(const QString& path) {
    if (QFileInfo::exists(path))
        throw Complaint(
            lines(QStringLiteral("ファイルが既に存在します。"), path, QStringLiteral("別の名前を指定して下さい。")));
}

Exit runNew(const QStringList& arguments) {
    Options options;
    options.read(arguments, 1);
    refuseExisting(options.place(0));
    createDatabase(options.place(0));
    return Exit::Done;
}

} // namespace kurbo
