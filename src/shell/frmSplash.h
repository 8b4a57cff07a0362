#pragma once

#include <QWidget>

#include <memory>

namespace kurbo {

namespace Ui {
class frmSplash;
}

// Shown while the client starts and ends; a click or any key takes it away.
class frmSplash final : public QWidget {
    Q_OBJECT

  public:
    explicit frmSplash(const QString& warning);
    ~frmSplash() override;
    frmSplash(const frmSplash&) = delete;
    frmSplash& operator=(const frmSplash&) = delete;

    // Shows it and has it painted before it returns.
    void showAtOnce();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    const std::unique_ptr<Ui::frmSplash> ui_;
};

} // namespace kurbo
