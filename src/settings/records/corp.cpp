#include "settings/records/corp.h"

#include <array>

namespace kurbo {
namespace {

using enum FieldKind;

constexpr std::array fields{
    RecordField{u"F_Corp", u"txtCorp", u"      会社名：", Text, 50, true, true, u"会社名",
                u"会社名は全角25文字(半角50文字)以内で入力します。"},
    RecordField{u"F_Branch", u"txtBranch", u"    支社店名：", Text, 50, true, false, u"支社店名",
                u"支社店名は全角25文字(半角50文字)以内で入力します。"},
    RecordField{u"F_ZipCode", u"txtZipCode", u"    郵便番号：", SingleByte, 12, false, false, u"郵便番号",
                u"郵便番号は半角12文字以内で入力します。"},
    RecordField{u"F_Pref", u"cboPref", u"    都道府県：", Prefecture, 0, true, false, u"都道府県名",
                u"都道府県名はリストから選択して下さい。"},
    RecordField{u"F_Address1", u"txtAddress1", u"       住所1：", Text, 50, true, false, u"住所1",
                u"住所1は全角25文字(半角50文字)以内で入力します。"},
    RecordField{u"F_Address2", u"txtAddress2", u"       住所2：", Text, 50, true, false, u"住所2",
                u"住所2は全角25文字(半角50文字)以内で入力します。"},
    RecordField{u"F_Tel", u"txtTel", u"    電話番号：", SingleByte, 20, false, false, u"電話番号",
                u"電話番号は半角20文字以内で入力します。"},
    RecordField{u"F_Fax", u"txtFax", u"     FAX番号：", SingleByte, 20, false, false, u"ﾌｧｯｸｽ番号",
                u"ﾌｧｯｸｽ番号は半角20文字以内で入力します。"},
    RecordField{u"F_Title", u"txtTitle", u"  代表者肩書：", Text, 20, true, false, u"代表者肩書",
                u"代表者肩書は全角10文字(半角20文字)以内で入力します。"},
    RecordField{u"F_President", u"txtPresident", u"    代表者名：", Text, 30, true, false, u"代表者名",
                u"代表者名は全角15文字(半角30文字)以内で入力します。"},
};

} // namespace

RecordFields corpFields() {
    return fields;
}

RecordTexts readCorp(Connection& connection) {
    return readFields(fields,
                      RecordSet(connection, QStringLiteral("SELECT F_Corp, F_Branch, F_ZipCode, F_Pref, F_Address1, "
                                                           "F_Address2, F_Tel, F_Fax, F_Title, F_President "
                                                           "FROM C01_Corp;")));
}

void writeCorp(Connection& connection, const RecordTexts& before, const RecordTexts& now) {
    Transaction transaction(connection);
    RecordSet row(connection, QStringLiteral("SELECT * FROM C01_Corp;"));
    const bool isNew = !row.atRow();
    if (isNew) row.addNew();
    writeFields(fields, isNew ? RecordTexts() : before, now, row);
    row.updateBatch();
    transaction.commit();
}

} // namespace kurbo
