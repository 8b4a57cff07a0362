#include "settings/records/section.h"

namespace kurbo {
namespace {

using enum FieldKind;

constexpr std::array fields{
    RecordField{u"F_SectionName", u"txtName", u"    部課名：", Name, 30, true, true, u"部課名",
                u"部課名は全角15文字(半角30文字)以内で入力します。"},
    RecordField{u"F_SectionCode", u"txtCode", u"  部課ｺｰﾄﾞ：", Code, 10, false, true, u"部課コード",
                u"部課コードは半角10文字以内で入力します。"},
    RecordField{u"F_Tel", u"txtTel", u"  電話番号：", SingleByte, 20, false, false, u"電話番号",
                u"電話番号は半角20文字以内で入力します。"},
    RecordField{u"F_Fax", u"txtFax", u"   FAX番号：", SingleByte, 20, false, false, u"ﾌｧｯｸｽ番号",
                u"ﾌｧｯｸｽ番号は半角20文字以内で入力します。"},
    RecordField{u"F_DB", u"cboDB", u"    DBﾌｧｲﾙ：", Text, 100, false, true, u"データベースのパス",
                u"\r\nデータベースのパスは全角50文字(半角100文字)以内で入力します。\r\n"
                u"データベースの保存場所を変更し、パスを短縮して下さい。",
                nullptr, u"カレントデータベース"},
    RecordField{u"F_Display", u"chkDisplay", u"      表示：", Flag, 0, false, false, u"", u"", nullptr, u"1"},
};

constexpr RecordList list{
    u"部課",
    fields,
    {u"新しい部課", u"名称", u"MySection"},
    false,
    u"SELECT F_SectionCode, F_SectionName, F_Order FROM C02_Section ORDER BY F_Order;",
    u"SELECT * FROM C02_Section WHERE (F_SectionCode = ?) ORDER BY F_Order;",
    u"SELECT * FROM C02_Section WHERE (F_SectionCode = ?) ORDER BY F_Order;",
    u"SELECT F_Order FROM C02_Section ORDER BY F_Order;",
    u"DELETE * FROM C02_Section WHERE (F_SectionCode = ?);",
    {u"SELECT F_Section FROM C03_Staff WHERE (F_Section = ?);",
     u"SELECT F_Section FROM M08_Access WHERE (F_Section = ?);"},
    nullptr,
    u"ShowSection",
    u"UpdateSection",
    u"DeleteSection",
    u"PrintSection",
};

} // namespace

const RecordList& sectionList() {
    return list;
}

} // namespace kurbo
