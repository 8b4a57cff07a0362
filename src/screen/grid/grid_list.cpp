#include "screen/grid/grid_list.h"

#include <algorithm>

namespace kurbo {

GridList::GridList(const QString& list) : source_(list), open_(list.startsWith(u'|')) {
    for (const QString& entry : list.split(u'|', Qt::SkipEmptyParts))
        if (entry.startsWith(u'#'))
            entries_.append({entry.mid(1).section(u';', 0, 0), entry.section(u';', 1)});
        else
            entries_.append({entry, entry});
}

QString GridList::textOf(const QString& code) const {
    const auto found = std::ranges::find(entries_, code, &Entry::code);
    return found == entries_.end() ? code : found->text;
}

QString GridList::codeOf(const QString& text) const {
    const auto found = std::ranges::find(entries_, text, &Entry::text);
    return found == entries_.end() ? text : found->code;
}

bool GridList::hasText(const QString& text) const {
    return std::ranges::find(entries_, text, &Entry::text) != entries_.end();
}

} // namespace kurbo
