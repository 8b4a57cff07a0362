#pragma once

#include "settings/records/record_fields.h"

namespace kurbo {

// Fields that several kinds of records have alike.

inline constexpr RecordField zipCodeField{
    .name = u"F_ZipCode",
    .control = u"txtZipCode",
    .label = u"郵便番号",
    .kind = FieldKind::SingleByte,
    .limit = 12,
    .subject = u"郵便番号",
};
inline constexpr RecordField address1Field{
    .name = u"F_Address1",
    .control = u"txtAddress1",
    .label = u"住所1",
    .kind = FieldKind::Text,
    .limit = 50,
    .japanese = true,
    .subject = u"住所1",
};
inline constexpr RecordField address2Field{
    .name = u"F_Address2",
    .control = u"txtAddress2",
    .label = u"住所2",
    .kind = FieldKind::Text,
    .limit = 50,
    .japanese = true,
    .subject = u"住所2",
};
inline constexpr RecordField telephoneField{
    .name = u"F_Tel",
    .control = u"txtTel",
    .label = u"電話番号",
    .kind = FieldKind::SingleByte,
    .limit = 20,
    .subject = u"電話番号",
};
inline constexpr RecordField faxField{
    .name = u"F_Fax",
    .control = u"txtFax",
    .label = u"FAX番号",
    .kind = FieldKind::SingleByte,
    .limit = 20,
    .subject = u"ﾌｧｯｸｽ番号",
};
inline constexpr RecordField displayField{
    .name = u"F_Display",
    .control = u"chkDisplay",
    .label = u"表示",
    .kind = FieldKind::Flag,
    .preset = u"1",
};

// `firstCode` is 0 where the list begins with a blank entry, else 1.
constexpr RecordField prefectureField(int firstCode) {
    return {
        .name = u"F_Pref",
        .control = u"cboPref",
        .label = u"都道府県",
        .kind = FieldKind::Prefecture,
        .limit = firstCode,
        .japanese = true,
        .subject = u"都道府県名",
    };
}

} // namespace kurbo
