#include "session/shutdown.h"

#include "store/file/database_file.h"
#include "store/file/optimize_db.h"

#include <array>

namespace kurbo {
namespace {

struct Notice {
    OptimizeResult result;
    const char16_t* problem;
    const char16_t* advice;
};

constexpr std::array notices{
    Notice{.result = OptimizeResult::NoFile,
           .problem = u" が見つかりません。",
           .advice = u"データベースファイルの保存場所を確認して下さい。"},
    Notice{.result = OptimizeResult::NoDrive,
           .problem = u" が置かれたドライブの準備ができていません。",
           .advice = u"データベースファイルが置かれたドライブの状態を確認して下さい。"},
    Notice{.result = OptimizeResult::NoPath,
           .problem = u" のパスが見つかりません。",
           .advice = u"データベースファイルの保存場所を確認して下さい。"},
};

} // namespace

void shutDown(Client& client) {
    const Context& context = client.context;
    client.closeConnections();
    const OptimizeResult result = OptimizeDB(context, client.DbPath, databasePassword());
    if (result == OptimizeResult::OK)
        guarded(context, u"frmLogin", u"Form_Unload", [&] { copyDatabase(client.DbPath, context.paths.BackupPath); });
    for (const auto& notice : notices)
        if (result == notice.result)
            context.prompts.exclaim(
                lines(QStringLiteral("データベースファイル ") + client.DbPath + QString::fromUtf16(notice.problem),
                      QString::fromUtf16(notice.advice)));
}

} // namespace kurbo
