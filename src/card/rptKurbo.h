#pragma once

#include "base/day.h"
#include "paper/report_design.h"

namespace kurbo {

// Whose card of which period is printed, as it stands on the screen.
struct CardHeading {
    QString start;
    QString end;
    CodeName section;
    CodeName staff;
};

// The card as it stands in the grid, edits and all, on paper: the days, both sums, and room for two seals.
class rptKurbo final : public Report {
  public:
    rptKurbo(const GridModel& vfgKurbo, const CardHeading& heading, Day printedOn);

  private:
    void ActiveReport_ReportStart(const GridModel& grid, const CardHeading& heading, Day printedOn);
    void PageHeader_Format(ReportSection& section, int record) const override;
    void Detail_Format(ReportSection& section, int record) const override;
    void ReportFooter_Format(ReportSection& section, int record) const override;

    std::vector<bool> ColHidden_;
};

} // namespace kurbo
