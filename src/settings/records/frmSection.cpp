#include "settings/records/frmSection.h"

#include "screen/windows/show_now.h"
#include "settings/records/section.h"
#include "store/file/database_file.h"
#include "ui_frmSection.h"

namespace kurbo {

frmSection::frmSection(Client& client, QWidget* parent)
    : RecordListForm(client, parent, sectionList()), ui_(std::make_unique<Ui::frmSection>()) {
    ui_->setupUi(this);
    ui_->cboDB->setEntries({{currentDatabase(), currentDatabase()}});
    dressList(QStringLiteral("部課情報登録"), QStringLiteral("部課情報"),
              {.list = ui_->dtsSection,
               .record = ui_->picSection,
               .up = ui_->cmdUp,
               .down = ui_->cmdDown,
               .update = ui_->cmdUpdate,
               .print = ui_->cmdPrint});
    connect(ui_->cmdDB, &QAbstractButton::clicked, this, &frmSection::browse);
    placeInMiddle(this);
}

frmSection::~frmSection() {
    putAway();
}

void frmSection::browse() {
    if (const auto path = client_.context.prompts.openFile(QStringLiteral("DBﾌｧｲﾙ(*.mdb)|*.mdb")))
        ui_->cboDB->setEditText(*path);
}

} // namespace kurbo
