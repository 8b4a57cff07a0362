#pragma once

#include "paper/paper.h"
#include "paper/report_records.h"

namespace kurbo {

// A caption, or what a field of the record holds, in a section of a report. `left` counts from the sheet's margin,
// `top` from the section's top.
struct ReportControl : PaperItem {
    QString name{};
    // The field that gives its text; empty for a caption.
    QString dataField{};
    // The grid's column that it shows; -1 for none.
    int column = -1;
    bool visible = true;
};

struct ReportSection {
    int height = 0;
    std::vector<ReportControl> controls{};

    // The control of that name; it has to be there.
    [[nodiscard]] ReportControl& control(QStringView name);
};

// Hides the controls of hidden columns; those of other columns to the right of one move left by its width.
void closeGaps(ReportSection& section, const std::vector<bool>& ColHidden);

// A report: its sections are printed with the records of its data source, one detail a record. A page is formatted when
// it is asked for; each format event works on a fresh copy of its section.
class Report : public PaperDocument {
  public:
    [[nodiscard]] QString Caption() const final { return design_.caption; }
    [[nodiscard]] QString DocumentName() const final { return design_.documentName; }
    [[nodiscard]] QString FileName() const final { return design_.fileName; }
    [[nodiscard]] PaperSize paper() const final { return design_.paper; }
    [[nodiscard]] int pageCount() const final { return static_cast<int>(pages_.size()); }
    [[nodiscard]] PaperPage page(int index) const final;

  protected:
    struct Design {
        QString caption;
        QString documentName;
        QString printedOn;
        // What it is saved as, without a suffix.
        QString fileName{};
        PaperSize paper = a4Landscape;
        ReportSection PageHeader{};
        // Printed whenever the text of its field changes, and once more where a group goes on on another page. It never
        // stands alone at the end of a page.
        ReportSection GroupHeader{};
        QString groupField{};
        ReportSection Detail{};
        // By record, whether it closes its group: it then stays on the page of the record before it. Empty for none.
        std::vector<bool> closing{};
        ReportSection ReportFooter{};
    };

    // Takes the records and finds where the pages break.
    void run(Design design, ReportRecords records);
    [[nodiscard]] const ReportRecords& DataSource() const { return records_; }

    // `record` counts from 0; of the page header it is the page's first one.
    virtual void PageHeader_Format(ReportSection& /*section*/, int /*record*/) const {}
    virtual void GroupHeader_Format(ReportSection& /*section*/, int /*record*/) const {}
    virtual void Detail_Format(ReportSection& /*section*/, int /*record*/) const {}
    virtual void ReportFooter_Format(ReportSection& /*section*/, int /*record*/) const {}

  private:
    using Event = void (Report::*)(ReportSection&, int) const;
    enum class Part { Group, Detail, Footer };
    struct Piece {
        Part part;
        int record;
        int top;
    };
    using Pieces = std::vector<Piece>;

    void breakPages();
    void place(Part part, int record, int together = 0);
    [[nodiscard]] bool hasGroups() const { return !design_.groupField.isEmpty(); }
    [[nodiscard]] bool beginsGroup(int record) const;
    [[nodiscard]] bool isClosedByNext(int record) const;
    [[nodiscard]] int firstTop() const { return paperMargin + design_.PageHeader.height; }
    [[nodiscard]] const ReportSection& sectionOf(Part part) const;
    [[nodiscard]] static Event eventOf(Part part);
    void put(PaperPage& page, const ReportSection& designed, Event event, const Piece& piece) const;

    Design design_;
    ReportRecords records_{{}};
    std::vector<Pieces> pages_;
    int top_ = 0;
};

} // namespace kurbo
