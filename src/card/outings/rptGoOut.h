#pragma once

#include "base/guard.h"
#include "engine/hours.h"
#include "paper/report_design.h"

namespace kurbo {

// All outings of a person in a period, out of the store, and what they cost together.
class rptGoOut final : public Report {
  public:
    // Throws when the store can't be read.
    rptGoOut(Connection& connection, const CodeName& section, const CodeName& staff, Period period, Day printedOn);

  private:
    void ActiveReport_ReportStart(Connection& connection, const QString& heading, const QString& staff, Period period,
                                  Day printedOn);
    void Detail_Format(ReportSection& section, int record) const override;
};

// The report, or nothing after a failure, which is reported.
[[nodiscard]] std::unique_ptr<rptGoOut> makeGoOutReport(const Context& context, Connection& connection,
                                                        const CodeName& section, const CodeName& staff, Period period);

} // namespace kurbo
