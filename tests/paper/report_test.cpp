#include "paper/report_design.h"

#include "base/system/code_page.h"
#include "paper/paper_texts.h"

namespace kurbo::test {
namespace {

TEST(ReportRecords, CutsFieldsByBytesAndNeverHalfACharacter) {
    for (const auto& [text, bytes, cut] :
         {std::tuple{u"12345678"_q, 6, u"123456"_q}, std::tuple{u"漢字か"_q, 5, u"漢字"_q},
          std::tuple{u"ｱｲｳ漢"_q, 4, u"ｱｲｳ"_q}, std::tuple{u"a髙𠮷b"_q, 4, u"a髙"_q}, std::tuple{u"漢"_q, 1, QString()}})
        EXPECT_EQ(cutToBytes(text, bytes), cut) << text;
    for (char16_t sign = 0xA0; sign < 0xFFFE; sign += 7) {
        const QString text = QString(QChar(sign)) + u'x';
        EXPECT_TRUE(QChar(sign).isSurrogate() || (cutToBytes(text, 2) == text) == (byteLength(text) <= 2)) << text;
    }
    ReportRecords list({{u"F_A", 3}, {u"F_B", 4}});
    list.AddNew({u"漢字"_q, u"12:30"_q});
    EXPECT_EQ(list.text(0, u"F_A"), u"漢"_q);
    EXPECT_EQ(list.text(0, u"F_B"), u"12:3"_q);
    EXPECT_EQ(list.text(1, u"F_B") + list.text(-1, u"F_A") + list.text(0, u"F_C"), QString());
}

constexpr std::array columns{ReportColumn{u"F_Group", 20, -1, 0}, ReportColumn{u"F_Name", 20, 3, 1000},
                             ReportColumn{u"F_A", 8, 4, 700}, ReportColumn{u"F_B", 8, 5, 600},
                             ReportColumn{u"F_C", 8, 6, 500}};

TEST(ReportSection, HiddenColumnsLeaveNoGapInAnyOfItsLines) {
    ReportSection section;
    addFields(section, columns, {.height = 100});
    addCaptions(section, columns, {.top = 100, .height = 100}, u"sum", {{}, {}, u"a"_q, u"b"_q, u"c"_q});
    std::vector<bool> hidden(7);
    hidden[4] = true;
    closeGaps(section, hidden);
    EXPECT_FALSE(section.control(u"txtF_A").visible || section.control(u"sumF_A").visible);
    for (const char16_t* name : {u"txtF_B", u"sumF_B"}) EXPECT_EQ(section.control(name).left, 1000);
    for (const char16_t* name : {u"txtF_C", u"sumF_C"}) EXPECT_EQ(section.control(name).left, 1600);
    EXPECT_EQ(hiddenWidth(std::span(columns).subspan(1), hidden), 700);
}

// Groups of so many records each; a page holds nine lines.
class Groups final : public Report {
  public:
    explicit Groups(const std::vector<int>& sizes, bool closed = false) {
        ReportRecords records(fieldsOf(columns));
        std::vector<bool> closing;
        for (std::size_t group = 0; group < sizes.size(); ++group)
            for (int i = 0; i < sizes[group]; ++i) {
                records.AddNew({u"G%1"_q.arg(group), u"%1.%2"_q.arg(group).arg(i)});
                closing.push_back(closed && i + 1 == sizes[group]);
            }
        const int line = (footerTop(a4Landscape) - paperMargin) / 10;
        Design design{.caption = u"c"_q, .documentName = u"d"_q, .printedOn = u"2026/04/15"_q};
        design.groupField = u"F_Group"_q;
        design.PageHeader = {line, {label(u"lbl"_q, u"head"_q, 0, 1000, {.height = line})}};
        design.GroupHeader = {line, {label(u"txtGroup"_q, {}, 0, 1000, {.height = line})}};
        design.GroupHeader.controls[0].dataField = u"F_Group"_q;
        design.Detail.height = line;
        addFields(design.Detail, columns, {.height = line});
        design.closing = std::move(closing);
        design.ReportFooter = {line, {label(u"end"_q, u"end"_q, 0, 1000, {.height = line})}};
        run(std::move(design), std::move(records));
    }
    void Detail_Format(ReportSection& section, int record) const override {
        if (record == 1) section.control(u"txtF_Name").bold = true;
    }
};

QStringList pageTexts(const Groups& report) {
    QStringList pages;
    for (int i = 0; i < report.pageCount(); ++i) {
        QStringList lines = linesOf(report.page(i));
        EXPECT_EQ(lines.takeFirst(), u"head"_q) << "on every page";
        EXPECT_EQ(lines.takeLast().section(u'|', 0), u"印刷日：2026/04/15"_q);
        pages.append(lines.join(u' '));
    }
    return pages;
}

TEST(Report, GroupsStartCleanlyAndGoOnUnderTheirHeading) {
    struct Case {
        std::vector<int> sizes;
        QStringList pages;
    };
    const std::vector cases{
        Case{{}, {u"end"_q}},
        Case{{2, 1}, {u"G0 0.0 0.1 G1 1.0 end"_q}},
        Case{{7}, {u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6 end"_q}},
        Case{{8}, {u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7"_q, u"end"_q}},
        // No heading alone at the end of a page.
        Case{{7, 1}, {u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6"_q, u"G1 1.0 end"_q}},
        Case{{5, 4}, {u"G0 0.0 0.1 0.2 0.3 0.4 G1 1.0 1.1"_q, u"G1 1.2 1.3 end"_q}},
        Case{{8, 1}, {u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6 0.7"_q, u"G1 1.0 end"_q}},
    };
    for (const Case& c : cases) {
        const Groups report(c.sizes);
        EXPECT_EQ(pageTexts(report), c.pages) << c.pages.join(u'/');
        expectClean(report);
    }
    EXPECT_EQ(pageTexts(Groups({9}, true)), QStringList({u"G0 0.0 0.1 0.2 0.3 0.4 0.5 0.6"_q, u"G0 0.7 0.8 end"_q}));
    EXPECT_EQ(pageTexts(Groups({6, 2}, true)), QStringList({u"G0 0.0 0.1 0.2 0.3 0.4 0.5"_q, u"G1 1.0 1.1 end"_q}));
    EXPECT_EQ(pageTexts(Groups({7, 1}, true)).value(1), u"G1 1.0 end"_q);
    const PaperPage page = Groups({3}).page(0);
    EXPECT_TRUE(itemOf(page, u"0.1"_q).bold);
    EXPECT_FALSE(itemOf(page, u"0.2"_q).bold) << "each record is formatted afresh";
}

TEST(Report, ItsFileIsNamedByWhomAndWhen) {
    for (const auto& [start, end, name] : {std::tuple{u"2026/05/01"_q, u"2026/05/31"_q, u"t_1001_202605"_q},
                                           {u"2026/04/21"_q, u"2026/05/20"_q, u"t_1001_202605"_q},
                                           {u"2026/05/01"_q, u"2026/05/30"_q, u"t_1001_20260501-20260530"_q},
                                           {u"2026/05/01"_q, u"2026/05/01"_q, u"t_1001_20260501"_q},
                                           {u"2026/05"_q, u"2026/05"_q, u"t_1001_202605"_q},
                                           {u"2026/05"_q, u"2026/06"_q, u"t_1001_202605-202606"_q}})
        EXPECT_EQ(reportFileName(u"t"_q, u"1001"_q, start, end), name);
    EXPECT_EQ(reportFileName(u"t"_q, {}, u"2026/05"_q, u"2026/05"_q), u"t_202605"_q);
}

} // namespace
} // namespace kurbo::test
