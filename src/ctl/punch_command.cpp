#include "ctl/commands.h"
#include "ctl/console.h"
#include "punch/punch_clock.h"
#include "session/login.h"

#include <QFile>

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

struct Word {
    const char16_t* word;
    Punch punch;
};

constexpr std::array words{
    Word{.word = u"enter", .punch = Punch::Enter},
    Word{.word = u"leave", .punch = Punch::Leave},
    Word{.word = u"out", .punch = Punch::Out},
    Word{.word = u"in", .punch = Punch::In},
};

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

// On the command line it could be seen in the list of processes.
QString passwordOf(const Options& options) {
    const char* const variable = "KURBO_PASSWORD";
    if (!options.has(QStringLiteral("password")) && qEnvironmentVariableIsSet(variable))
        return qEnvironmentVariable(variable);
    const QString password = options.needed(QStringLiteral("password"));
    if (password != u"-") return password;
    QFile input;
    const QByteArray line = input.open(stdin, QIODevice::ReadOnly) ? input.readLine() : QByteArray();
    return QString::fromUtf8(line).remove(u'\r').remove(u'\n');
}

// The section in whose login list the person may stand.
QString sectionOf(Connection& connection, const QString& staff) {
    const auto section =
        connection.firstValue(QStringLiteral("SELECT F_Section FROM C03_Staff WHERE (F_StaffCode = ?);"), {staff});
    return section ? section->text() : QString();
}

Exit logInAndPunch(const Console& console, const Options& options, const QString& password, Punch kind) {
    const QString staff = options.value(QStringLiteral("staff"));
    Client client(console.context());
    client.DbPath = options.argument(0);
    client.openHome();
    Login login(client);
    const Credentials credentials{sectionOf(client.HomeConnection, staff), staff, password};
    if (login.attempt(credentials) != LoginResult::Open) return console.refused();
    return punch(console.context(), client.HomeConnection, client.session, kind) == PunchResult::Done
               ? Exit::Done
               : console.refused();
}

Exit runPunch(const Options& options) {
    const Punch kind = punchNamed(options.argument(1));
    const QString password = passwordOf(options);
    const Console console(options, continuedAnswer(options));
    try {
        return logInAndPunch(console, options, password, kind);
    } catch (const Unanswered&) {
        complain(QStringLiteral("--continued yes または --continued no を指定して下さい。"));
        return Exit::Refused;
    }
}

constexpr std::array punchOptions{
    OptionText{.name = u"staff", .value = u"CODE", .text = u"the person", .needed = true},
    OptionText{.name = u"password",
               .value = u"PW|-",
               .text = u"the password, or - to read it from the first line of standard input"},
    OptionText{.name = u"continued",
               .value = u"yes|no",
               .text = u"answers the question whether a day that is still open goes on"},
};

} // namespace

const Command punchCommand{
    .name = u"punch",
    .run = runPunch,
    .arguments = u"FILE enter|leave|out|in",
    .summary = u"Punches for a person as the window does, with the same messages.",
    .more = u"Without --password the environment variable KURBO_PASSWORD holds the password. One that stands on the\n"
            u"command line is seen by whoever may list the processes.\n"
            u"When the question of --continued comes up without it, the punch is refused.",
    .options = punchOptions,
    .example = u"punch demo.mdb enter --staff 1003 --password - < password.txt",
};

} // namespace kurbo
