#pragma once

#include "settings/records/corp.h"
#include "settings/records/section.h"
#include "settings/records/staff.h"
#include "store/engine_fault.h"
#include "support/sample_company.h"

namespace kurbo::test {

// A text that each field takes, by their kinds.
inline RecordTexts goodTexts(RecordFields fields) {
    static const std::array good{u"ｱ1"_q,     u"ｱ1"_q,  u"ｱ1"_q, u"ｱ1"_q, u"1980/02/29"_q,
                                 u"東京都"_q, u"S01"_q, u"1"_q,  u"1"_q};
    RecordTexts texts;
    for (const RecordField& field : fields) texts.append(good[static_cast<std::size_t>(field.kind)]);
    return texts;
}

inline RecordTexts with(RecordFields fields, const QString& field, const QString& text) {
    RecordTexts texts = goodTexts(fields);
    texts[fieldAt(fields, field)] = text;
    return texts;
}

} // namespace kurbo::test
