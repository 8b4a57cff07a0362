#pragma once

#include "base/day.h"
#include "paper/report_design.h"
#include "totals/total_sheet.h"

namespace kurbo {

// Whose totals of which months are printed, as they stand on the screen; an empty staff code for the whole section.
struct TotalHeading {
    QString start;
    QString end;
    CodeName section;
    CodeName staff;
};

// The totals as they stand in the grid, on paper: a group is a month of all people, or a person over all months, as the
// grid is ordered.
class rptTotal final : public Report {
  public:
    rptTotal(const TotalSheet& sheet, const TotalHeading& heading, Day printedOn);

  private:
    void ActiveReport_ReportStart(const TotalSheet& sheet, const TotalHeading& heading, Day printedOn);
    void PageHeader_Format(ReportSection& section, int record) const override;
    void GroupHeader_Format(ReportSection& section, int record) const override;
    void Detail_Format(ReportSection& section, int record) const override;
    void ReportFooter_Format(ReportSection& section, int record) const override;

    std::vector<bool> ColHidden_;
    // By record: a sub-total or the total.
    std::vector<bool> sums_;
};

} // namespace kurbo
