#include "screen/record_list.h"

#include "base/code_page.h"

#include <algorithm>

namespace kurbo {

QString cutToBytes(const QString& text, int bytes) {
    // No character has more than two bytes.
    if (2 * text.size() <= bytes) return text;
    int used = 0;
    for (qsizetype i = 0; i < text.size();) {
        const qsizetype units = text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        used += text[i].unicode() < 0x80 ? 1 : byteLength(text.mid(i, units));
        if (used > bytes) return text.left(i);
        i += units;
    }
    return text;
}

void RecordList::AddNew(QStringList cells) {
    cells.resize(static_cast<qsizetype>(fields_.size()));
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        QString& cell = cells[static_cast<qsizetype>(i)];
        cell = cutToBytes(cell, fields_[i].bytes);
    }
    records_.append(std::move(cells));
}

int RecordList::fieldNamed(QStringView name) const {
    const auto found = std::ranges::find_if(fields_, [name](const Field& field) { return name == field.name; });
    return found == fields_.end() ? -1 : static_cast<int>(found - fields_.begin());
}

QString RecordList::text(int record, QStringView field) const {
    const int place = fieldNamed(field);
    return place >= 0 && record >= 0 && record < count() ? text(record, place) : QString();
}

} // namespace kurbo
