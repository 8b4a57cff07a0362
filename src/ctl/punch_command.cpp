#include "ctl/commands.h"
#include "ctl/console.h"
#include "punch/punch_clock.h"
#include "shell/login.h"
#include "store/database_file.h"
#include "store/readers.h"

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

struct Word {
    const char16_t* word;
    Punch punch;
};

constexpr std::array words{Word{u"enter", Punch::Enter}, Word{u"leave", Punch::Leave}, Word{u"out", Punch::Out},
                           Word{u"in", Punch::In}};

Punch punchNamed(const QString& name) {
    const auto found = std::ranges::find_if(words, [&](const Word& word) { return name == QStringView(word.word); });
    if (found == words.end()) throw WrongUse{QStringLiteral("punch takes enter, leave, out or in")};
    return found->punch;
}

std::optional<Answer> continuedAnswer(const Options& options) {
    const QString name = QStringLiteral("continued");
    if (!options.has(name)) return {};
    if (options.value(name) == u"yes") return Answer::Yes;
    if (options.value(name) == u"no") return Answer::No;
    throw WrongUse{QStringLiteral("--continued takes yes or no")};
}

// The name shown in the login list, for messages; the code where there is none.
QString nameOf(Connection& connection, const QString& staff) {
    const auto name =
        connection.firstValue(QStringLiteral("SELECT F_StaffName FROM C03_Staff WHERE (F_StaffCode = ?);"), {staff});
    return name && !name->isNull() ? name->text() : staff;
}

// Who is not in the login list can't log in.
void refuseHidden(Connection& connection, const QString& staff) {
    const bool hidden = connection.hasRow(QStringLiteral("SELECT F_StaffCode FROM C03_Staff WHERE (F_StaffCode = ?) "
                                                         "AND (F_Display = False) AND (F_StaffCode <> 'ADMIN');"),
                                          {staff});
    if (hidden) throw Complaint(QStringLiteral("不正な入力です。リストから選択して下さい。"));
}

Exit logInAndPunch(const Console& console, const Options& options, Punch kind) {
    const QString staff = options.value(QStringLiteral("staff"));
    Client client(console.context());
    client.DbPath = options.place(0);
    client.openHome();
    refuseHidden(client.HomeConnection, staff);
    Login login(client);
    const Credentials credentials{
        {}, staff, nameOf(client.HomeConnection, staff), options.value(QStringLiteral("password"))};
    if (login.attempt(credentials) != LoginResult::Open) return console.refused();
    if (!client.session.access.CanPunch)
        throw Complaint(QStringLiteral("アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。"));
    const Puncher puncher{client.session.SessionStaff, client.session.EnterDelay, client.session.LeaveGain};
    return punch(console.context(), client.HomeConnection, puncher, kind) == PunchResult::Done ? Exit::Done
                                                                                               : console.refused();
}

} // namespace

Exit runPunch(const QStringList& arguments) {
    Options options;
    options.add(QStringLiteral("staff"), QStringLiteral("staff code"));
    options.add(QStringLiteral("password"), QStringLiteral("the person's password"));
    options.add(QStringLiteral("continued"), QStringLiteral("yes or no: the open day goes on"));
    options.read(arguments, 2);
    const Punch kind = punchNamed(options.place(1));
    for (const char16_t* name : {u"staff", u"password"}) (void)options.needed(QString::fromUtf16(name));
    const Console console(options, continuedAnswer(options));
    try {
        return logInAndPunch(console, options, kind);
    } catch (const Unanswered&) {
        complain(QStringLiteral("--continued yes または --continued no を指定して下さい。"));
        return Exit::Refused;
    }
}

} // namespace kurbo
