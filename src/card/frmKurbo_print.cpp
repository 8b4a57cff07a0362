// The card and the list of its outings on paper.

#include "card/edit/card_checks.h"
#include "card/frmKurbo.h"
#include "card/outings/rptGoOut.h"
#include "card/rptKurbo.h"
#include "paper/frmPreview.h"
#include "screen/files/card_file.h"
#include "ui_frmKurbo.h"

namespace kurbo {

CodeName frmKurbo::chosenSection() const {
    return {ui_->dcbSection->boundText(), ui_->dcbSection->currentText()};
}

CodeName frmKurbo::chosenStaff() const {
    return {ui_->dcbStaff->boundText(), ui_->dcbStaff->currentText()};
}

void frmKurbo::print() {
    const CardHeading heading{ui_->mskStart->maskText(), ui_->mskEnd->maskText(), chosenSection(), chosenStaff()};
    if (!checkedPeriod(client_.context, heading.start, heading.end)) return;
    guarded(client_.context, u"rptKurbo", u"ActiveReport_ReportStart", [&] {
        showPreview(std::make_unique<rptKurbo>(screen_.sheet.grid, heading, client_.context.clock.today()), client_,
                    this);
    });
}

void frmKurbo::listGoOut() {
    const auto period = checkedPeriod(client_.context, ui_->mskStart->maskText(), ui_->mskEnd->maskText());
    if (!period || !screen_.mayGoOut() ||
        refusesFileMode(client_.context.prompts, screen_.sheet.blnFileMode, QStringLiteral("外出明細一覧の表示")))
        return;
    auto report = makeGoOutReport(client_.context, *client_.CurrentConnection, chosenSection(), chosenStaff(), *period);
    if (report) showPreview(std::move(report), client_, this);
}

} // namespace kurbo
