#pragma once

#include <QMainWindow>
#include <QTextDocument>

#include <memory>

namespace kurbo {

namespace Ui {
class frmHelp;
}

// Shows a help file, which is HTML in UTF-8, and the files beside it that it leads to.
class frmHelp final : public QMainWindow {
    Q_OBJECT

  public:
    explicit frmHelp(const QString& path, QWidget* parent = nullptr);
    ~frmHelp() override;
    frmHelp(const frmHelp&) = delete;
    frmHelp& operator=(const frmHelp&) = delete;

    // Goes to the first of these anchors that the file has, or to its top. The window must be on the screen.
    void showTopic(const QStringList& anchors);

  private:
    void connectCommands();
    void goTo(const QString& anchor);
    void find(QTextDocument::FindFlags direction);

    const std::unique_ptr<Ui::frmHelp> ui_;
    QString path_;
};

} // namespace kurbo
