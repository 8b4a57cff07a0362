#include "session/shutdown.h"

#include "store/file/database_file.h"
#include "store/file/optimize_db.h"

#include <array>

namespace kurbo {
namespace {

struct Notice {
    const char16_t* result;
    const char16_t* problem;
    const char16_t* advice;
};

constexpr std::array notices{
    Notice{u"NoFile", u" が見つかりません。", u"データベースファイルの保存場所を確認して下さい。"},
    Notice{u"NoDrive", u" が置かれたドライブの準備ができていません。",
           u"データベースファイルが置かれたドライブの状態を確認して下さい。"},
    Notice{u"NoPath", u" のパスが見つかりません。", u"データベースファイルの保存場所を確認して下さい。"},
};

} // namespace

void shutDown(Client& client) {
    const Context& context = client.context;
    client.closeConnections();
    const QString result = OptimizeDB(context, client.DbPath, databasePassword());
    if (result == u"OK")
        guarded(context, u"frmLogin", u"Form_Unload", [&] { copyDatabase(client.DbPath, context.paths.BackupPath); });
    for (const auto& notice : notices)
        if (result == QStringView(notice.result))
            context.prompts.exclaim(
                lines(QStringLiteral("データベースファイル ") + client.DbPath + QString::fromUtf16(notice.problem),
                      QString::fromUtf16(notice.advice)));
}

} // namespace kurbo
