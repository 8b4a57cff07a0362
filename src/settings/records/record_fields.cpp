#include "settings/records/record_fields.h"

#include "base/failure.h"
#include "base/field_tests.h"
#include "base/system/code_page.h"
#include "screen/fields/prefectures.h"
#include "settings/listing.h"
#include "settings/settings_steps.h"

#include <algorithm>

namespace kurbo {
namespace {

QString text(const char16_t* words) {
    return QString::fromUtf16(words);
}

bool isGood(const RecordField& field, const QString& typed, const QStringList& choices) {
    switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Name:
        return byteLength(typed) <= field.limit;
    case FieldKind::SingleByte:
    case FieldKind::Code:
        return IsSingleByte(typed) && typed.size() <= field.limit;
    case FieldKind::Date:
        return parseSlashDate(typed).has_value();
    case FieldKind::Prefecture:
        return PrefectureCode(typed) >= field.limit;
    case FieldKind::List:
        return choices.contains(typed);
    case FieldKind::Option:
    case FieldKind::Flag:
        break;
    }
    return true;
}

// What would be right in a field that is left with a bad text.
QString demandOf(const RecordField& field) {
    if (field.demand) return text(field.demand);
    const QString subject = text(field.subject);
    switch (field.kind) {
    case FieldKind::Text:
    case FieldKind::Name:
        return subject +
               QStringLiteral("は全角%1文字(半角%2文字)以内で入力します。").arg(field.limit / 2).arg(field.limit);
    case FieldKind::SingleByte:
    case FieldKind::Code:
        return subject + QStringLiteral("は半角%1文字以内で入力します。").arg(field.limit);
    case FieldKind::Date:
        return subject + QStringLiteral("はyyyy/mm/ddの形式で入力します。");
    default:
        return subject + QStringLiteral("はリストから選択して下さい。");
    }
}

QString demandOnUpdate(const RecordField& field) {
    if (field.demandOnUpdate) return text(field.demandOnUpdate);
    return field.kind == FieldKind::Date ? QStringLiteral("日付をyyyy/mm/dd形式で入力します。") : demandOf(field);
}

bool isChosen(const RecordField& field) {
    return field.kind == FieldKind::Prefecture || field.kind == FieldKind::List;
}

bool isNewCode(const QString& code) {
    return code.toUpper() == newCode();
}

[[noreturn]] void refuseCode(const RecordField& field, const QString& reserved) {
    throw Complaint(
        QStringLiteral("%1が不正です。「%2」はシステム予約コードです。").arg(text(field.subject), reserved));
}

void checkName(const RecordField& field, const QString& name, const ReservedRecord& reserved) {
    if (name != text(reserved.name)) return;
    throw Complaint(
        lines(text(field.subject) + QStringLiteral("を変更して下さい。"),
              QStringLiteral("%1「%2」は使用できません。").arg(text(reserved.nameWord), text(reserved.name))));
}

void checkCode(const RecordField& field, const QString& code, const ReservedRecord& reserved) {
    if (isNewCode(code)) refuseCode(field, newCode());
    if (code.toUpper() == text(reserved.otherCode).toUpper()) refuseCode(field, text(reserved.otherCode));
}

void checkField(const RecordField& field, const QString& typed, const FieldChecks& checks) {
    if (typed.isEmpty() && field.required)
        throw FieldComplaint(text(field.subject) + QStringLiteral("が入力されていません。"), {text(field.control)});
    if (typed.isEmpty()) return;
    if (field.kind == FieldKind::Name) checkName(field, typed, *checks.reserved);
    if (!isGood(field, typed, checks.choices))
        throw FieldComplaint(text(field.subject) + QStringLiteral("が不正です。") + demandOnUpdate(field),
                             {text(field.control)});
    if (field.kind == FieldKind::Code) checkCode(field, typed, *checks.reserved);
}

// Prefectures have been stored by their names, too.
QString prefectureOf(const QString& stored) {
    bool isCode = false;
    const int code = stored.toInt(&isCode);
    return isCode ? PrefectureName(code) : stored;
}

QString textOf(const RecordField& field, const Value& value) {
    const auto moment = value.moment();
    switch (field.kind) {
    case FieldKind::Date:
        return moment ? slashDate(dayOf(*moment)) : QString();
    case FieldKind::Prefecture:
        return prefectureOf(value.text());
    case FieldKind::Option:
        return value.integer() == 1 ? QStringLiteral("1") : QStringLiteral("0");
    case FieldKind::Flag:
        return value.yes() ? QStringLiteral("1") : QString();
    case FieldKind::Code:
        return isNewCode(value.text()) ? QString() : value.text();
    default:
        return value.text();
    }
}

Value valueOf(const RecordField& field, const QString& typed) {
    switch (field.kind) {
    case FieldKind::Date:
        return typed.isEmpty() ? Value() : Value(*parseSlashDate(typed));
    case FieldKind::Prefecture:
        return typed.isEmpty() ? Value() : Value(PrefectureCode(typed));
    case FieldKind::Option:
        return typed.toInt();
    case FieldKind::Flag:
        return Value::yesNo(!typed.isEmpty());
    default:
        return Value::textOrNull(typed);
    }
}

QString wordOf(const RecordField& field, const QString& typed) {
    if (field.kind == FieldKind::Option) return text(typed == u"1" ? field.oneWord : field.zeroWord);
    if (field.kind == FieldKind::Flag) return typed.isEmpty() ? QStringLiteral("しない") : QStringLiteral("する");
    return typed;
}

} // namespace

QString newCode() {
    return QStringLiteral("NEW");
}

QStringList codesOf(const QList<CodeName>& entries) {
    QStringList codes;
    for (const CodeName& entry : entries) codes.append(entry.code);
    return codes;
}

QString refusalOnLeaving(const RecordField& field, const QString& typed, const QStringList& choices) {
    const QString wrong = QStringLiteral("不正な入力です。");
    if (typed.isEmpty()) return {};
    if (!isGood(field, typed, choices))
        return isChosen(field) ? QStringLiteral("リストから選択して下さい｡ ") : wrong + demandOf(field);
    if (field.kind == FieldKind::Code && isNewCode(typed))
        return wrong + QStringLiteral("「%1」はシステム予約コードです。").arg(newCode());
    return {};
}

void checkFields(RecordFields fields, const RecordTexts& texts, const FieldChecks& checks) {
    for (std::size_t i = 0; i < fields.size(); ++i)
        checkField(fields[i], texts[static_cast<qsizetype>(i)].trimmed(), checks);
}

RecordTexts readFields(RecordFields fields, const RecordSet& row) {
    RecordTexts texts;
    for (const RecordField& field : fields)
        texts.append(textOf(field, row.atRow() ? row.value(text(field.name)) : Value()));
    return texts;
}

void writeFields(RecordFields fields, const RecordTexts& before, const RecordTexts& now, RecordSet& row) {
    const RecordTexts stored = before.isEmpty() ? now : readFields(fields, row);
    for (qsizetype i = 0; i < now.size(); ++i) {
        if (!before.isEmpty() && now[i] == before[i] && stored[i] != before[i]) continue;
        const RecordField& field = fields[static_cast<std::size_t>(i)];
        row.set(text(field.name), valueOf(field, now[i].trimmed()));
    }
}

int fieldAt(RecordFields fields, QStringView name) {
    const auto found = std::ranges::find_if(fields, [name](const RecordField& field) { return name == field.name; });
    return found == fields.end() ? -1 : static_cast<int>(found - fields.begin());
}

QStringList fieldLines(RecordFields fields, const RecordTexts& texts, const QHash<QString, QString>& notes) {
    constexpr int indent = 2;
    int widest = 0;
    for (const RecordField& field : fields) widest = std::max(widest, byteLength(text(field.label)));
    QStringList listing;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const RecordField& field = fields[static_cast<std::size_t>(i)];
        listing.append(listingLabel(text(field.label), indent + widest) + wordOf(field, texts[i]) +
                       notes.value(text(field.name)));
    }
    return listing;
}

} // namespace kurbo
