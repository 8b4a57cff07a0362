#include "settings/records/corp.h"

#include "settings/records/shared_fields.h"

#include <array>

namespace kurbo {
namespace {

constexpr std::array fields{
    RecordField{.name = u"F_Corp",
                .control = u"txtCorp",
                .label = u"会社名",
                .kind = FieldKind::Text,
                .limit = 50,
                .japanese = true,
                .required = true,
                .subject = u"会社名"},
    RecordField{.name = u"F_Branch",
                .control = u"txtBranch",
                .label = u"支社店名",
                .kind = FieldKind::Text,
                .limit = 50,
                .japanese = true,
                .subject = u"支社店名"},
    zipCodeField,
    prefectureField(0),
    address1Field,
    address2Field,
    telephoneField,
    faxField,
    RecordField{.name = u"F_Title",
                .control = u"txtTitle",
                .label = u"代表者肩書",
                .kind = FieldKind::Text,
                .limit = 20,
                .japanese = true,
                .subject = u"代表者肩書"},
    RecordField{.name = u"F_President",
                .control = u"txtPresident",
                .label = u"代表者名",
                .kind = FieldKind::Text,
                .limit = 30,
                .japanese = true,
                .subject = u"代表者名"},
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
