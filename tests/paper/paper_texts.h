#pragma once

#include "paper/paper.h"
#include "support/desk.h"

#include <QStringList>

#include <map>

namespace kurbo::test {

// The texts of a page line by line, each line's from left to right parted by "|".
inline QStringList linesOf(const PaperPage& page) {
    std::map<int, std::map<int, QString>> lines;
    for (const PaperItem& item : page)
        if (!item.text.isEmpty()) lines[item.top][item.left] = item.text;
    QStringList texts;
    for (const auto& [top, line] : lines) {
        QStringList cells;
        for (const auto& [left, text] : line) cells.append(text);
        texts.append(cells.join(u'|'));
    }
    return texts;
}

// The first item with that text.
inline PaperItem itemOf(const PaperPage& page, const QString& text) {
    for (const PaperItem& item : page)
        if (item.text == text) return item;
    ADD_FAILURE() << "not on the page: " << text;
    return {};
}

inline bool overlap(const PaperItem& one, const PaperItem& other) {
    return one.left < other.right() && other.left < one.right() && one.top < other.bottom() && other.top < one.bottom();
}

// That all lies within the margins, and nothing over anything else or over the footer.
inline void expectClean(const PaperDocument& document) {
    const PaperSize paper = document.paper();
    for (int index = 0; index < document.pageCount(); ++index) {
        PaperPage page = document.page(index);
        std::erase_if(page, [&](const PaperItem& item) { return item.top == footerTop(paper); });
        for (std::size_t i = 0; i < page.size(); ++i) {
            const PaperItem& item = page[i];
            EXPECT_GE(item.left, paperMargin) << item.text;
            EXPECT_LE(item.right(), paper.width - paperMargin) << item.text;
            EXPECT_LE(item.bottom(), footerTop(paper)) << item.text;
            for (std::size_t other = 0; other < i; ++other)
                EXPECT_FALSE(overlap(item, page[other])) << item.text << " over " << page[other].text;
        }
    }
}

} // namespace kurbo::test
