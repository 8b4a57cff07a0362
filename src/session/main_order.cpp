#include "session/main_order.h"

#include "base/product.h"
#include "base/system/files.h"
#include "session/parm_file.h"
#include "store/file/is_db_ok.h"

namespace kurbo {
namespace {

[[noreturn]] void giveUp() {
    throw Complaint(QStringLiteral("アプリケーションを実行できません。"));
}

// True when the database of "Parm.dat" is good; otherwise the person has been told why frmParm comes.
bool databaseFound(Client& client) {
    Prompts& prompts = client.context.prompts;
    switch (ReadParm(client.context, client.context.paths.ParmPath, client.DbPath)) {
    case ParmResult::OK:
        if (IsDbOK(client.DbPath)) return true;
        prompts.exclaim(lines(QStringLiteral("データベースファイル"), client.DbPath,
                              QStringLiteral("の形式が異なります。データベースの保存場所，ファイル名"),
                              QStringLiteral("に誤りが無いか確認して下さい。")));
        client.DbUsable = false;
        return false;
    case ParmResult::Install:
        prompts.ask({QStringLiteral("Welcom! ") + productName(),
                     QStringLiteral("データベースファイルファイルを指定して下さい。"), Icon::Information});
        return false;
    case ParmResult::NoDB:
        prompts.exclaim(lines(QStringLiteral("データベースファイル"), client.DbPath,
                              QStringLiteral("が見つかりません。データベースの保存場所，ファイル名"),
                              QStringLiteral("に誤りが無いか確認して下さい。"),
                              QStringLiteral("また、これらが保存されているマシンの電源が入っている"),
                              QStringLiteral("事，ネットワーク接続に異常が無い事を確認して下さい。")));
        return false;
    case ParmResult::NoParm:
        prompts.exclaim(QStringLiteral("データベースファイルの保存場所を設定して下さい。"));
        return false;
    case ParmResult::InputPastEnd:
    case ParmResult::Error:
        break;
    }
    giveUp();
}

void start(Client& client, StartScreens& screens) {
    screens.showSplash(QStringLiteral("起動中です･･･"));
    if (databaseFound(client)) {
        RemoveStaleLock(client.DbPath);
        makeWritable(client.DbPath);
    } else {
        screens.runParm();
        if (!client.DbUsable) giveUp();
    }
    screens.showLogin();
}

} // namespace

bool Main(Client& client, StartScreens& screens) {
    const auto tidily = [&] {
        try {
            start(client, screens);
        } catch (...) {
            screens.hideSplash();
            client.closeConnections();
            throw;
        }
        return true;
    };
    return guarded(client.context, u"basKurbo", u"Main", false, tidily);
}

} // namespace kurbo
