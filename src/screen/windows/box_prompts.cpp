#include "screen/windows/box_prompts.h"

#include "base/product.h"
#include "screen/windows/frmListing.h"
#include "screen/windows/hourglass.h"
#include "screen/windows/text_viewer.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <array>

namespace kurbo {
namespace {

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

QString captionOf(Answer answer) {
    switch (answer) {
    case Answer::Ok:
        return QStringLiteral("OK");
    case Answer::Cancel:
        return QStringLiteral("ｷｬﾝｾﾙ");
    case Answer::Yes:
        return QStringLiteral("はい(&Y)");
    case Answer::No:
        return QStringLiteral("いいえ(&N)");
    }
    return {};
}

// The second answer is also that of Esc and of closing the box.
std::array<Answer, 2> answersOf(Buttons buttons) {
    if (buttons == Buttons::YesNo) return {Answer::Yes, Answer::No};
    if (buttons == Buttons::OkCancel) return {Answer::Ok, Answer::Cancel};
    return {Answer::Ok, Answer::Ok};
}

// The toolkit breaks lines that are longer than it likes, in Japanese in the middle of a word.
void keepLinesWhole(const QMessageBox& box) {
    // A box is at most 480 pixels narrower than a wide screen; the icon and the margins take their part of it.
    constexpr int beside = 160;
    const int screen = QGuiApplication::primaryScreen()->availableSize().width();
    const int widest = std::min(900, (screen <= 1024 ? screen : screen - 480) - beside);
    auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (!label) return;
    const QSize text = label->fontMetrics().size(0, box.text());
    label->setWordWrap(true);
    label->setMinimumWidth(std::min(text.width() + label->fontMetrics().averageCharWidth(), widest));
}

void setText(QMessageBox& box, const Message& message) {
    QString text = message.text;
    box.setWindowTitle(message.title.isEmpty() ? productName() : message.title);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setText(text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    keepLinesWhole(box);
}

// The toolkit's own dialog, with the program's question before a file is replaced.
class FileDialog final : public QFileDialog {
  public:
    FileDialog(BoxPrompts& prompts, const FileQuestion& question)
        : QFileDialog(QApplication::activeWindow()), prompts_(prompts) {
        constexpr QSize roomy(860, 520);
        setObjectName(QStringLiteral("dlgFile"));
        setOption(QFileDialog::DontUseNativeDialog);
        setOption(QFileDialog::DontConfirmOverwrite);
        resize(roomy);
        setNameFilters(kurbo::nameFilters(question.filter));
        setFor(question);
        setLabelText(QFileDialog::Reject, QStringLiteral("ｷｬﾝｾﾙ"));
        setLabelText(QFileDialog::LookIn, QStringLiteral("場所："));
        setLabelText(QFileDialog::FileName, QStringLiteral("ファイル名(&N)："));
        setLabelText(QFileDialog::FileType, QStringLiteral("ファイルの種類："));
    }
    void accept() override {
        if (acceptMode() == AcceptOpen || mayReplace()) QFileDialog::accept();
    }

  private:
    void setFor(const FileQuestion& question) {
        const bool saves = question.kind == FileQuestion::Kind::Save;
        setWindowTitle(productName() +
                       (saves ? QStringLiteral("－名前を付けて保存") : QStringLiteral("－ファイルを開く")));
        setAcceptMode(saves ? AcceptSave : AcceptOpen);
        setFileMode(saves ? AnyFile : question.kind == FileQuestion::Kind::OpenMany ? ExistingFiles : ExistingFile);
        setLabelText(QFileDialog::Accept, saves ? QStringLiteral("保存(&S)") : QStringLiteral("開く(&O)"));
        setDefaultSuffix(question.defaultExtension);
        if (!question.suggestedName.isEmpty()) selectFile(question.suggestedName);
    }
    bool mayReplace() {
        const QStringList paths = selectedFiles();
        if (paths.isEmpty() || !QFileInfo(paths.constFirst()).isFile()) return true;
        return prompts_.confirm(paths.constFirst() + QStringLiteral("は既に存在します。\r\n\r\n上書きしますか？"));
    }

    BoxPrompts& prompts_;
};

} // namespace

Answer BoxPrompts::ask(const Message& message) {
    const NormalPointer pointer;
    QMessageBox box(QApplication::activeWindow());
    setText(box, message);
    box.setIcon(iconOf(message.icon));
    const auto [first, second] = answersOf(message.buttons);
    QPushButton* const accept = box.addButton(captionOf(first), QMessageBox::AcceptRole);
    QPushButton* const refuse = second == first ? accept : box.addButton(captionOf(second), QMessageBox::RejectRole);
    box.setDefaultButton(message.preset == second ? refuse : accept);
    box.setEscapeButton(refuse);
    box.exec();
    return box.clickedButton() == accept ? first : second;
}

QStringList BoxPrompts::chooseFiles(const FileQuestion& question) {
    const NormalPointer pointer;
    FileDialog dlgFile(*this, question);
    return dlgFile.exec() == QDialog::Accepted ? dlgFile.selectedFiles() : QStringList();
}

void BoxPrompts::showText(const QString& path) {
    if (!openInViewer(path)) (new frmListing(path, QApplication::activeWindow()))->show();
}

QStringList nameFilters(const QString& filter) {
    const QString whole = filter.isEmpty() ? QStringLiteral("全てのﾌｧｲﾙ(*.*)|*.*") : filter;
    const QStringList parts = whole.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        // "*.*" leaves out names without a dot on this platform.
        QString patterns = parts[i + 1];
        patterns = patterns == u"*.*" ? QStringLiteral("*") : patterns.replace(u';', u' ');
        const qsizetype bracket = parts[i].lastIndexOf(u'(');
        filters.append(parts[i].left(bracket < 0 ? parts[i].size() : bracket) + u'(' + patterns + u')');
    }
    return filters;
}

} // namespace kurbo
