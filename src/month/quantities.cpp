#include "month/quantities.h"

#include <QStringList>

namespace kurbo {

QString quantityFields(QStringView table) {
    QStringList fields;
    for (const QuantityFacts& facts : quantities)
        fields.append((table.isEmpty() ? QString() : table.toString() + u'.') + QString::fromUtf16(facts.field));
    return fields.join(QStringLiteral(", "));
}

QString switchFields() {
    QStringList fields;
    for (const QuantityFacts& facts : quantities)
        if (facts.shown) fields.append(QString::fromUtf16(facts.field));
    return fields.join(QStringLiteral(", "));
}

QStringList quantityHeadings(QStringView sign) {
    QStringList headings;
    for (const QuantityFacts& facts : quantities) headings.append(sign.toString() + QString::fromUtf16(facts.heading));
    return headings;
}

} // namespace kurbo
