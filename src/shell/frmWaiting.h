#pragma once

#include "base/progress.h"

#include <QElapsedTimer>
#include <QWidget>

#include <memory>

namespace kurbo {

namespace Ui {
class frmWaiting;
}

// What a long step shows; a click, or its title's cross, takes it away. A step that doesn't ask whether it was stopped
// goes on.
class frmWaiting final : public QWidget, public Progress {
    Q_OBJECT

  public:
    frmWaiting();
    ~frmWaiting() override;
    frmWaiting(const frmWaiting&) = delete;
    frmWaiting& operator=(const frmWaiting&) = delete;

    // Whether one of them is on the screen.
    [[nodiscard]] static bool isAnyUp();

    void begin(const QString& text, int maximum) override;
    void step(int value) override;
    void end() override;
    // Looks for the click now and then; what people do meanwhile in other windows is dropped, and none of them closes.
    [[nodiscard]] bool stopped() override;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    const std::unique_ptr<Ui::frmWaiting> ui_;
    QElapsedTimer sincePaint_;
    QElapsedTimer sinceLook_;
    bool endless_ = false;
    // The step asks whether it was stopped.
    bool asks_ = false;
    bool closed_ = false;
};

} // namespace kurbo
