#include "session/choose_database.h"

#include "base/product.h"
#include "base/system/files.h"
#include "session/parm_file.h"
#include "store/file/is_db_ok.h"

namespace kurbo {
namespace {

ChoiceEnd askToStop(Client& client, const QString& text) {
    const Message question{productName(), text, Icon::Question, Buttons::YesNo, Answer::Yes};
    if (client.context.prompts.ask(question) != Answer::Yes) return ChoiceEnd::Stay;
    client.DbUsable = false;
    return ChoiceEnd::GivenUp;
}

// Path, connection and "Parm.dat" change together or not at all.
bool takeOver(Client& client, const QString& path) {
    const QString old = client.DbPath;
    client.DbPath = path;
    const bool taken = guarded(client.context, u"frmParm", u"Form_Unload", false, [&] {
        client.openHome();
        if (WriteParm(client.context, client.context.paths.ParmPath, path)) return true;
        throw Complaint(QStringLiteral("フォルダ設定に失敗しました。"));
    });
    if (taken) return true;
    client.HomeConnection.close();
    client.DbPath = old;
    return false;
}

} // namespace

ChoiceEnd chooseDatabase(Client& client, const QString& typed) {
    QString path = typed;
    if (!CheckPath(path))
        return askToStop(client, QStringLiteral("指定したパスが見つかりません。設定を中断しますか？"));
    if (!IsDbOK(path))
        return askToStop(client, lines(QStringLiteral("データベースファイル"), path,
                                       QStringLiteral("の形式が異なります。設定を中断しますか？")));
    client.DbUsable = takeOver(client, path);
    return client.DbUsable ? ChoiceEnd::Chosen : ChoiceEnd::GivenUp;
}

void keepDatabase(Client& client) {
    QString path = client.DbPath;
    if (!CheckPath(path)) client.DbUsable = false;
}

} // namespace kurbo
