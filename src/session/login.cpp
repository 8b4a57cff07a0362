#include "session/login.h"

#include "store/engine_fault.h"
#include "store/text_order.h"

#include <algorithm>

namespace kurbo {
namespace {

constexpr int mostWrong = 3;

// The entry of a code in any case; throws the refusal when the list lacks it.
CodeName entryOf(const QList<CodeName>& list, const QString& code) {
    const auto found =
        std::ranges::find_if(list, [&](const CodeName& entry) { return compareText(entry.code, code) == 0; });
    if (found == list.end()) throw Complaint(QStringLiteral("不正な入力です。リストから選択して下さい。"));
    return *found;
}

} // namespace

bool IsPasswordOK(const Context& context, Connection& connection, const QString& staff, const QString& password) {
    return guarded(context, u"frmLogin", u"IsPasswordOK", false, [&] {
        if (password.contains(u'\'') || staff.contains(u'\'')) throw storeFault(StoreError::Syntax);
        return isPasswordOf(connection, staff, password);
    });
}

bool GetTimeDiff(const Context& context, Connection& connection, const QString& staff, int& EnterDelay,
                 int& LeaveGain) {
    return guarded(context, u"frmLogin", u"GetTimeDiff", false, [&] {
        Rows rows = connection.rows(
            QStringLiteral("SELECT F_EnterDelay, F_LeaveGain FROM M02_StaffInfo WHERE (F_StaffCode = ?);"), {staff});
        const bool found = rows.next();
        EnterDelay = found ? static_cast<int>(rows.integer(0)) : 0;
        LeaveGain = found ? static_cast<int>(rows.integer(1)) : 0;
        return true;
    });
}

bool Login::isThrown() const {
    return FailedLogins_ >= mostWrong;
}

LoginResult Login::attempt(const Credentials& credentials) {
    if (isThrown()) return LoginResult::Thrown;
    const auto person = listed(credentials);
    if (!person) return LoginResult::Stopped;
    if (!IsPasswordOK(client_.context, client_.HomeConnection, person->staff.code, credentials.password))
        return wrongPassword();
    FailedLogins_ = 0;
    return admit(*person);
}

// Comes before the password, of which a refusal tells nothing.
std::optional<Login::Listed> Login::listed(const Credentials& credentials) const {
    if (isAdminCode(credentials.staff)) return Listed{adminCode(), {adminCode(), adminCode()}};
    return guarded(client_.context, u"frmLogin", u"IsListed", std::optional<Listed>(), [&] {
        const CodeName section = entryOf(loginSections(client_.HomeConnection), credentials.section);
        return std::optional(
            Listed{section.code, entryOf(loginStaff(client_.HomeConnection, section.code), credentials.staff)});
    });
}

LoginResult Login::wrongPassword() {
    ++FailedLogins_;
    client_.context.prompts.exclaim(isThrown()
                                        ? QStringLiteral("不正なパスワードです。強制終了します。")
                                        : QStringLiteral("不正なパスワードです。正しいパスワードを入力して下さい。"));
    return isThrown() ? LoginResult::Thrown : LoginResult::Refused;
}

LoginResult Login::admit(const Listed& person) {
    Session session{person.section, person.staff.code, {}, 0, 0};
    Connection& connection = client_.HomeConnection;
    if (!GetAccess(client_.context, connection, session.SessionStaff, mySection(), session.access) ||
        !GetTimeDiff(client_.context, connection, session.SessionStaff, session.EnterDelay, session.LeaveGain))
        return LoginResult::Stopped;
    if (session.access.AccessFound) {
        client_.session = session;
        return LoginResult::Open;
    }
    client_.context.prompts.exclaim(lines(person.staff.name + QStringLiteral(" さんのアクセス権が設定されていません。"),
                                          QStringLiteral("管理者にアクセス権の設定を依頼して下さい。")));
    return LoginResult::Stopped;
}

bool CheckLoginInput(const QString& sectionText, const QString& staffText, const QString& password) {
    const bool placed = isAdminCode(staffText) || !sectionText.isEmpty();
    return placed && !staffText.isEmpty() && !password.isEmpty();
}

} // namespace kurbo
