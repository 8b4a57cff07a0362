#include "card/outings/go_out.h"

#include "base/field_tests.h"
#include "base/product.h"
#include "card/edit/card_times.h"
#include "card/outings/go_out_store.h"

namespace kurbo {
namespace {

constexpr QStringView module = u"frmGoOut";

} // namespace

GoOut::GoOut(Client& client)
    : client_(client), rules_(sheet, [this](const QString& destination) {
          return guarded(client_.context, module, u"vfgGoOut_AfterEdit", std::int64_t{0},
                         [&] { return hasConnection() ? lastExpense(connection(), sheet.staff, destination) : 0; });
      }) {
    sheet.grid.setRules(&rules_);
}

void GoOut::setPerson(const QString& staff, bool blnMyCard) {
    sheet.staff = staff;
    const AccessRights& access = client_.session.access;
    sheet.granted = access.has(blnMyCard ? Right::WriteMyGoOut : Right::WriteOtherGoOut);
    readable_ = access.has(blnMyCard ? Right::ReadMyGoOut : Right::ReadOtherGoOut);
    if (!readable_) showDay(0);
}

bool GoOut::hasConnection() const {
    return client_.hasConnection(module);
}

bool GoOut::mayPrint() const {
    if (!readable_)
        client_.context.prompts.exclaim(
            QStringLiteral("アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。"));
    return readable_;
}

void GoOut::ShowGoOut(const QString& cardKey, const QString& dateText) {
    const bool dated = dayOfRow(dateText).has_value();
    sheet.dateText = dated ? dateText : QString();
    showDay(dated && IsIntegerText(cardKey, IntegerMode::Positive) ? cardKey.toLongLong() : 0);
}

// A list that couldn't be read must never be written in place of the stored one.
void GoOut::showDay(std::int64_t key) {
    QList<QStringList> outings;
    if (!readable_ || (key > 0 && !hasConnection())) key = 0;
    sheet.key = guarded(client_.context, module, u"ShowGoOut", std::int64_t{0}, [&] {
        if (key > 0) outings = readOutings(connection(), key);
        return key;
    });
    drawGoOut(sheet, outings);
    if (sheet.key > 0) offerDestinations();
}

void GoOut::offerDestinations() {
    const QString list = guarded(client_.context, module, u"ShowGoOut", QString(),
                                 [this] { return destinationList(connection(), sheet.staff); });
    sheet.grid.ColComboList(static_cast<int>(GoOutColumn::Destination), list);
}

bool GoOut::insertRow(int row) {
    if (!sheet.mayWrite() || !client_.context.prompts.sure(QStringLiteral("カレント行の上に１行挿入します。")))
        return false;
    insertGoOut(sheet, row);
    return true;
}

bool GoOut::deleteRow(int row) {
    if (!mayDelete() || !client_.context.prompts.sure(QStringLiteral("カレント行を削除します。"))) return false;
    deleteGoOut(sheet, row);
    return true;
}

bool GoOut::CheckData() const {
    return guarded(client_.context, module, u"CheckData", false, [this] {
        if (sheet.key < 1)
            throw Complaint(QStringLiteral("タイムカードの打刻記録が無いため、外出明細を更新できません。"));
        if (sheet.staff.isEmpty())
            throw Complaint(QStringLiteral("タイムカードの氏名が未入力のため、外出明細を更新できません。"));
        for (int row = firstGoOut; row < sheet.grid.Rows(); ++row)
            if (const QString why = goOutRowRefusal(sheet, row); !why.isEmpty()) throw Complaint(why);
        return true;
    });
}

bool GoOut::UpdateGoOut() {
    return guarded(client_.context, module, u"UpdateGoOut", false, [this] {
        writeOutings(connection(), sheet);
        return true;
    });
}

bool GoOut::update() {
    if (!hasConnection() || !CheckData() || !client_.context.prompts.sure(QStringLiteral("追加・変更を更新します。")))
        return false;
    if (!UpdateGoOut()) {
        client_.context.prompts.exclaim(QStringLiteral("追加・変更を更新できませんでした。"));
        return false;
    }
    sheet.changed = false;
    sheet.grid.clearRowStatus();
    offerDestinations();
    return true;
}

bool GoOut::mayLeaveDay() {
    if (!sheet.changed) return true;
    if (!client_.context.prompts.confirm(QStringLiteral("外出出張明細は変更されています。変更を破棄しますか？")))
        return false;
    // Without a name the screen may already stand in another file.
    showDay(sheet.staff.isEmpty() ? 0 : sheet.key);
    return true;
}

bool GoOut::mayClose() const {
    return !sheet.changed ||
           client_.context.prompts.confirm(QStringLiteral("外出明細は変更されています。変更を破棄しますか？"));
}

} // namespace kurbo
