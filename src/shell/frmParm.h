#pragma once

#include "screen/windows/form_dialog.h"
#include "store/client.h"

#include <memory>

namespace kurbo {

namespace Ui {
class frmParm;
}

// Where the database lies. Every way out but the cancel button takes over the path, or asks why not.
class frmParm final : public FormDialog {
    Q_OBJECT

  public:
    explicit frmParm(Client& client, QWidget* parent = nullptr);
    ~frmParm() override;
    frmParm(const frmParm&) = delete;
    frmParm& operator=(const frmParm&) = delete;

    void done(int result) override;

  Q_SIGNALS:
    // The form is closed, and the client works on another database now.
    void databaseChosen();

  private:
    void browse();
    void cancel();
    // False when the form stays.
    [[nodiscard]] bool unload();

    const std::unique_ptr<Ui::frmParm> ui_;
    Client& client_;
    bool cancelled_ = false;
    bool chosen_ = false;
};

} // namespace kurbo
