#include "paper/report_records.h"

#include <algorithm>

namespace kurbo {

namespace {

// As byteLength has it, without asking the encoder for each character.
int bytesOf(QChar sign) {
    const bool halfWidthKana = sign >= u'｡' && sign <= u'ﾟ';
    return sign.unicode() < 0x80 || halfWidthKana ? 1 : 2;
}

} // namespace

QString cutToBytes(const QString& text, int bytes) {
    int used = 0;
    for (qsizetype i = 0; i < text.size();) {
        used += bytesOf(text[i]);
        if (used > bytes) return text.left(i);
        i += text[i].isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
    }
    return text;
}

void ReportRecords::AddNew(QStringList cells, std::size_t cut) {
    cells.resize(static_cast<qsizetype>(fields_.size()));
    for (std::size_t i = 0; i < std::min(cut, fields_.size()); ++i) {
        QString& cell = cells[static_cast<qsizetype>(i)];
        cell = cutToBytes(cell, fields_[i].bytes);
    }
    records_.append(std::move(cells));
}

int ReportRecords::fieldNamed(QStringView name) const {
    const auto found = std::ranges::find_if(fields_, [name](const Field& field) { return name == field.name; });
    return found == fields_.end() ? -1 : static_cast<int>(found - fields_.begin());
}

QString ReportRecords::text(int record, QStringView field) const {
    const int index = fieldNamed(field);
    return index >= 0 && record >= 0 && record < count() ? text(record, index) : QString();
}

} // namespace kurbo
