#include "settings/records/section.h"

#include "settings/records/shared_fields.h"

namespace kurbo {
namespace {

constexpr std::array fields{
    RecordField{.name = u"F_SectionName",
                .control = u"txtName",
                .label = u"部課名",
                .kind = FieldKind::Name,
                .limit = 30,
                .japanese = true,
                .required = true,
                .subject = u"部課名"},
    RecordField{.name = u"F_SectionCode",
                .control = u"txtCode",
                .label = u"部課ｺｰﾄﾞ",
                .kind = FieldKind::Code,
                .limit = 10,
                .required = true,
                .subject = u"部課コード"},
    telephoneField,
    faxField,
    RecordField{.name = u"F_DB",
                .control = u"cboDB",
                .label = u"DBﾌｧｲﾙ",
                .kind = FieldKind::Text,
                .limit = 100,
                .required = true,
                .subject = u"データベースのパス",
                .demand = u"\r\nデータベースのパスは全角50文字(半角100文字)以内で入力します。\r\n"
                          u"データベースの保存場所を変更し、パスを短縮して下さい。",
                .preset = u"カレントデータベース"},
    displayField,
};

constexpr RecordList list{
    .noun = u"部課",
    .fields = fields,
    .reserved = {.name = u"新しい部課", .nameWord = u"名称", .otherCode = u"MySection"},
    .needsReserved = false,
    .list = u"SELECT F_SectionCode, F_SectionName, F_Order FROM C02_Section ORDER BY F_Order;",
    .show = u"SELECT * FROM C02_Section WHERE (F_SectionCode = ?) ORDER BY F_Order;",
    .update = u"SELECT * FROM C02_Section WHERE (F_SectionCode = ?) ORDER BY F_Order;",
    .orders = u"SELECT F_Order FROM C02_Section ORDER BY F_Order;",
    .remove = u"DELETE * FROM C02_Section WHERE (F_SectionCode = ?);",
    .uses = {u"SELECT F_Section FROM C03_Staff WHERE (F_Section = ?);",
             u"SELECT F_Section FROM M08_Access WHERE (F_Section = ?);"},
    .choices = nullptr,
    .showName = u"ShowSection",
    .updateName = u"UpdateSection",
    .removeName = u"DeleteSection",
    .printName = u"PrintSection",
};

} // namespace

const RecordList& sectionList() {
    return list;
}

} // namespace kurbo
