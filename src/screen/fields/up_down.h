#pragma once

#include <QPointer>
#include <QToolButton>
#include <QWidget>

namespace kurbo {

// Two small arrow buttons that move a field's value; they leave the focus where it is.
class UpDown final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool repeats READ repeats WRITE setRepeats)

  public:
    explicit UpDown(QWidget* parent = nullptr);

    // The keys Up and Down in the field do what the buttons do. One field at a time; none for null.
    void setBuddy(QWidget* field);
    // Whether a button or key held down goes on; at first it does not.
    [[nodiscard]] bool repeats() const { return up_.autoRepeat(); }
    void setRepeats(bool on);

  Q_SIGNALS:
    void UpClick();
    void DownClick();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QToolButton up_;
    QToolButton down_;
    QPointer<QWidget> buddy_;
};

} // namespace kurbo
