#include "settings/people/password.h"

#include "base/field_tests.h"
#include "store/access.h"
#include "store/record_set.h"

namespace kurbo {

QString oldPasswordMissing() {
    return QStringLiteral("現在登録されているパスワードを入力して下さい。");
}

QString passwordRefusal(const QString& wanted) {
    constexpr int longest = 10;
    if (wanted.size() <= longest && IsAlphaNumeric(wanted)) return {};
    return QStringLiteral("不正な入力です。パスワードは半角英数字10文字以内で入力します。");
}

// The boxes are left by ways on which nothing is asked, so that all of it is looked at once more.
std::optional<PasswordRefusal> checkPasswordChange(Connection& connection, const QString& staff,
                                                   const PasswordChange& change) {
    if (change.confirmation != change.wanted)
        return PasswordRefusal{PasswordBox::Confirmation,
                               QStringLiteral("確認用パスワードが新しいパスワードと異なります。")};
    if (change.old.isEmpty()) return PasswordRefusal{PasswordBox::Old, oldPasswordMissing()};
    if (!isPasswordOf(connection, staff, change.old)) return PasswordRefusal{PasswordBox::Old, {}};
    if (const QString refusal = passwordRefusal(change.wanted); !refusal.isEmpty())
        return PasswordRefusal{PasswordBox::Wanted, refusal};
    return {};
}

void UpdatePassword(Connection& connection, const QString& staff, const QString& newPassword) {
    Transaction transaction(connection);
    RecordSet row(connection, QStringLiteral("SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = ?);"), {staff});
    row.set(QStringLiteral("F_Password"), newPassword);
    row.updateBatch();
    transaction.commit();
}

} // namespace kurbo
