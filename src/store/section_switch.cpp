#include "store/section_switch.h"

#include "base/failure.h"
#include "base/system/files.h"
#include "store/file/database_file.h"
#include "store/readers.h"

namespace kurbo {
namespace {

[[noreturn]] void refuseMissing(const QString& path) {
    throw Complaint(lines(QStringLiteral("選択した部課の情報を保存しているデータベースファイル"),
                          QStringLiteral("  ") + path,
                          QStringLiteral("が見つかりません。データベースの保存場所，ファイル名"),
                          QStringLiteral("に誤りが無いか確認して下さい。"),
                          QStringLiteral("また、これらが保存されているマシンの電源が入っている"),
                          QStringLiteral("事，ネットワーク接続に異常が無い事を確認して下さい。")));
}

// A path that leads back to the home file needs no connection of its own.
Connection& connectionOf(Client& client, QString path) {
    if (path == currentDatabase()) return client.HomeConnection;
    if (!CheckPath(path)) refuseMissing(path);
    if (isSameFile(path, client.HomeConnection.path())) return client.HomeConnection;
    client.OtherConnection.close();
    client.OtherConnection.open(path, databasePassword());
    return client.OtherConnection;
}

// Goes there, or tells why not.
bool enter(Client& client, const QString& section, Day from, Day to) {
    const Context& context = client.context;
    client.CurrentConnection = &client.HomeConnection;
    const auto path = GetDbPath(context, client.HomeConnection, section);
    if (!path) return false;
    client.CurrentConnection = &connectionOf(client, *path);
    const int days = ExistCalendar(context, *client.CurrentConnection, from, to);
    if (days < 0) return false;
    if (days == 0) throw Complaint(noCalendarText());
    const Session& session = client.session;
    AccessRights access = session.access;
    if (!GetAccess(context, *client.CurrentConnection, session.SessionStaff,
                   section == session.SessionSection ? mySection() : section, access))
        return false;
    if (!access.AccessFound || !access.has(Right::ReadOtherKurbo))
        throw Complaint(QStringLiteral("アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。"));
    client.session.access = access;
    return true;
}

// Leads back to where the client was, unless the new place was reached.
class WayBack final {
  public:
    explicit WayBack(Client& client)
        : client_(client),
          wasOther_(client.CurrentConnection == &client.OtherConnection),
          before_(client.OtherConnection.isOpen() ? client.OtherConnection.path() : QString()) {}
    ~WayBack() {
        if (!arrived_) goBack();
    }
    WayBack(const WayBack&) = delete;
    WayBack& operator=(const WayBack&) = delete;
    void arrive() { arrived_ = true; }

  private:
    void goBack() {
        Connection& other = client_.OtherConnection;
        client_.CurrentConnection = wasOther_ ? &other : &client_.HomeConnection;
        if (wasOther_ && (!other.isOpen() || other.path() != before_))
            guarded(client_.context, u"basKurbo", u"switchSection", [&] { other.open(before_, databasePassword()); });
    }

    Client& client_;
    bool wasOther_;
    QString before_;
    bool arrived_ = false;
};

} // namespace

bool switchSection(Client& client, const QString& section, Day from, Day to) {
    WayBack wayBack(client);
    if (!enter(client, section, from, to)) return false;
    wayBack.arrive();
    return true;
}

void leaveSection(Client& client) {
    client.CurrentConnection = &client.HomeConnection;
    // Nobody keeps the rights of another section.
    if (!GetAccess(client.context, client.HomeConnection, client.session.SessionStaff, mySection(),
                   client.session.access))
        client.session.access = {};
    client.OtherConnection.close();
}

} // namespace kurbo
