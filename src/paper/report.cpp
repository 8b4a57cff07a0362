#include "paper/report.h"

#include <algorithm>

namespace kurbo {
namespace {

bool isHidden(const ReportControl& control, const std::vector<bool>& ColHidden) {
    return control.column >= 0 && control.column < static_cast<int>(ColHidden.size()) &&
           ColHidden[static_cast<std::size_t>(control.column)];
}

} // namespace

ReportControl& ReportSection::control(QStringView name) {
    return *std::ranges::find_if(controls, [name](const ReportControl& control) { return control.name == name; });
}

// Controls of one column stand under one another: the column's width counts once.
void closeGaps(ReportSection& section, const std::vector<bool>& ColHidden) {
    struct Gap {
        int column;
        int left;
        int width;
    };
    std::vector<Gap> gaps;
    for (const ReportControl& control : section.controls)
        if (isHidden(control, ColHidden) && std::ranges::find(gaps, control.column, &Gap::column) == gaps.end())
            gaps.push_back({control.column, control.left, control.width});
    for (ReportControl& control : section.controls) {
        if (control.column < 0) continue;
        control.visible = control.visible && !isHidden(control, ColHidden);
        int shift = 0;
        for (const Gap& gap : gaps)
            if (gap.left < control.left) shift += gap.width;
        control.left -= shift;
    }
}

void Report::run(Design design, ReportRecords records) {
    design_ = std::move(design);
    records_ = std::move(records);
    breakPages();
}

const ReportSection& Report::sectionOf(Part part) const {
    return part == Part::Group ? design_.GroupHeader : part == Part::Detail ? design_.Detail : design_.ReportFooter;
}

Report::Event Report::eventOf(Part part) {
    return part == Part::Group    ? &Report::GroupHeader_Format
           : part == Part::Detail ? &Report::Detail_Format
                                  : &Report::ReportFooter_Format;
}

bool Report::beginsGroup(int record) const {
    const int field = records_.fieldNamed(design_.groupField);
    return record == 0 || records_.text(record, field) != records_.text(record - 1, field);
}

bool Report::isClosedByNext(int record) const {
    const auto next = static_cast<std::size_t>(record) + 1;
    return next < design_.closing.size() && design_.closing[next] && !(hasGroups() && beginsGroup(record + 1));
}

void Report::breakPages() {
    pages_.assign(1, {});
    top_ = firstTop();
    for (int record = 0; record < records_.count(); ++record) {
        const int closing = isClosedByNext(record) ? design_.Detail.height : 0;
        if (hasGroups() && beginsGroup(record)) place(Part::Group, record, design_.Detail.height + closing);
        place(Part::Detail, record, closing);
    }
    place(Part::Footer, records_.count() - 1);
}

// On the page where it fits together with what follows it.
void Report::place(Part part, int record, int together) {
    const int height = sectionOf(part).height;
    const bool fits = top_ + height + together <= footerTop(design_.paper);
    if (!fits && !pages_.back().empty()) {
        pages_.emplace_back();
        top_ = firstTop();
        if (part == Part::Detail && hasGroups()) place(Part::Group, record, height);
    }
    pages_.back().push_back({part, record, top_});
    top_ += height;
}

PaperPage Report::page(int index) const {
    const Pieces& pieces = pages_[static_cast<std::size_t>(index)];
    PaperPage page;
    put(page, design_.PageHeader, &Report::PageHeader_Format,
        {Part::Detail, pieces.empty() ? -1 : pieces.front().record, paperMargin});
    for (const Piece& piece : pieces) put(page, sectionOf(piece.part), eventOf(piece.part), piece);
    addFooter(page, design_.paper, index, pageCount(), design_.printedOn);
    return page;
}

void Report::put(PaperPage& page, const ReportSection& designed, Event event, const Piece& piece) const {
    ReportSection section = designed;
    for (ReportControl& control : section.controls)
        if (!control.dataField.isEmpty()) control.text = records_.text(piece.record, control.dataField);
    (this->*event)(section, piece.record);
    for (ReportControl& control : section.controls) {
        if (!control.visible) continue;
        control.left += paperMargin;
        control.top += piece.top;
        page.push_back(std::move(control));
    }
}

} // namespace kurbo
