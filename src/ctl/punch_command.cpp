#include "ctl/commands.h"
#include "ctl/console.h"
#include "punch/punch_clock.h"
#include "shell/login.h"

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

// The section in whose login list the person may stand.
QString sectionOf(Connection& connection, const QString& staff) {
    const auto section =
        connection.firstValue(QStringLiteral("SELECT F_Section FROM C03_Staff WHERE (F_StaffCode = ?);"), {staff});
    return section ? section->text() : QString();
}

Exit logInAndPunch(const Console& console, const Options& options, Punch kind) {
    const QString staff = options.value(QStringLiteral("staff"));
    Client client(console.context());
    client.DbPath = options.place(0);
    client.openHome();
    Login login(client);
    const Credentials credentials{sectionOf(client.HomeConnection, staff), staff,
                                  options.value(QStringLiteral("password"))};
    if (login.attempt(credentials) != LoginResult::Open) return console.refused();
    return punch(console.context(), client.HomeConnection, client.session, kind) == PunchResult::Done
               ? Exit::Done
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
