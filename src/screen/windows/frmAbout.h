#pragma once

#include "screen/windows/form_dialog.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmAbout;
}

// Name and version, and how old the program's files are.
class frmAbout final : public FormDialog {
    Q_OBJECT

  public:
    frmAbout(const QString& helpPath, QWidget* parent);
    ~frmAbout() override;
    frmAbout(const frmAbout&) = delete;
    frmAbout& operator=(const frmAbout&) = delete;

  private:
    const std::unique_ptr<Ui::frmAbout> ui_;
};

} // namespace kurbo
