#include "shell/login.h"

#include "store/engine_fault.h"

namespace kurbo {

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

LoginResult Login::attempt(const Credentials& credentials) {
    if (!IsPasswordOK(client_.context, client_.HomeConnection, credentials.staff, credentials.password))
        return wrongPassword();
    FailedLogins_ = 0;
    return admit(credentials);
}

LoginResult Login::wrongPassword() {
    constexpr int mostWrong = 3;
    const bool last = ++FailedLogins_ >= mostWrong;
    client_.context.prompts.exclaim(last ? QStringLiteral("不正なパスワードです。強制終了します。")
                                         : QStringLiteral("不正なパスワードです。正しいパスワードを入力して下さい。"));
    return last ? LoginResult::Thrown : LoginResult::Refused;
}

LoginResult Login::admit(const Credentials& credentials) {
    Session& session = client_.session;
    const bool admin = isAdminCode(credentials.staff);
    session.SessionStaff = admin ? adminCode() : credentials.staff;
    session.SessionSection = admin ? adminCode() : credentials.section;
    Connection& connection = client_.HomeConnection;
    if (!GetAccess(client_.context, connection, session.SessionStaff, mySection(), session.access) ||
        !GetTimeDiff(client_.context, connection, session.SessionStaff, session.EnterDelay, session.LeaveGain))
        return LoginResult::Stopped;
    if (session.access.AccessFound) return LoginResult::Open;
    client_.context.prompts.exclaim(
        lines(credentials.staffText + QStringLiteral(" さんのアクセス権が設定されていません。"),
              QStringLiteral("管理者にアクセス権の設定を依頼して下さい。")));
    return LoginResult::Stopped;
}

bool CheckLoginInput(const QString& sectionText, const QString& staffText, const QString& password) {
    const bool placed = isAdminCode(staffText) || !sectionText.isEmpty();
    return placed && !staffText.isEmpty() && !password.isEmpty();
}

} // namespace kurbo
