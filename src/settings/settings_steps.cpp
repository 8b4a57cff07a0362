#include "settings/settings_steps.h"

namespace kurbo {
namespace {

[[nodiscard]] bool done(const Context& context, QStringView form, const SettingsStep& step) {
    return guarded(context, form, step.procedure, false, [&step] {
        step.body();
        return true;
    });
}

[[nodiscard]] bool mayRemove(const Context& context, QStringView form, const Removal& removal) {
    const QString question = guarded(context, form, u"mnuDelete_Click", QString(), [&removal] {
        if (!removal.reserved.isEmpty()) throw Complaint(removal.reserved + QStringLiteral("は削除できません。"));
        if (removal.isUsed())
            throw Complaint(
                QStringLiteral("表示されている%1は使用されているため削除できません。").arg(removal.subject));
        return QStringLiteral("表示されている%1を削除します。").arg(removal.subject);
    });
    return !question.isEmpty() && context.prompts.sure(question);
}

} // namespace

bool mayDiscard(Prompts& prompts, bool changed, const QString& subject) {
    return !changed || prompts.confirm(subject + QStringLiteral("は変更されています。変更を破棄しますか？"));
}

bool updateSettings(const Context& context, QStringView form, const SettingsStep& check, const SettingsStep& write) {
    if (!done(context, form, check) || !context.prompts.sure(QStringLiteral("追加・変更を更新します。"))) return false;
    if (done(context, form, write)) return true;
    context.prompts.exclaim(QStringLiteral("追加・変更を更新できませんでした。"));
    return false;
}

bool removeSetting(const Context& context, QStringView form, const Removal& removal) {
    if (!mayRemove(context, form, removal)) return false;
    if (done(context, form, removal.remove)) return true;
    context.prompts.exclaim(removal.failure);
    return false;
}

} // namespace kurbo
