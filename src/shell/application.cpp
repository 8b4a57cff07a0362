#include "shell/application.h"

#include "base/product.h"

#include <QFile>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QProxyStyle>
#include <QTranslator>

static void loadResources() {
    Q_INIT_RESOURCE(kurbo);
}

namespace kurbo {
namespace {

// The toolkit measures a menu entry by its ink and cuts it by its advance, which is more in Japanese fonts.
class RoomyStyle final : public QProxyStyle {
  public:
    RoomyStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        constexpr int room = 16;
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return type == CT_MenuItem ? size + QSize(room, 0) : size;
    }
};

QIcon applicationIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QStringLiteral(":/icons/kurbo-%1.png").arg(size), QSize(size, size));
    return icon;
}

QPalette calmColours() {
    QPalette colours(QColor(0xf3, 0xf5, 0xf7));
    colours.setColor(QPalette::Base, Qt::white);
    colours.setColor(QPalette::Highlight, QColor(0x2b, 0x5f, 0x9e));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    return colours;
}

QFont readableFont() {
    constexpr int points = 12;
    QFont font;
    font.setFamilies({QStringLiteral("Noto Sans CJK JP"), QStringLiteral("Noto Sans JP"), QStringLiteral("IPAPGothic"),
                      QStringLiteral("sans-serif")});
    font.setPointSize(points);
    return font;
}

QString styleSheet() {
    QFile file(QStringLiteral(":/style/kurbo.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void speakJapanese(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
    auto* const texts = new QTranslator(&application);
    if (texts->load(QStringLiteral("qtbase_ja"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(texts);
}

} // namespace

void dress(QApplication& application) {
    loadResources();
    QApplication::setApplicationName(QStringLiteral("kurbo"));
    QApplication::setApplicationVersion(productVersion());
    QApplication::setDesktopFileName(QStringLiteral("kurbo"));
    QApplication::setStyle(new RoomyStyle);
    QApplication::setPalette(calmColours());
    QApplication::setFont(readableFont());
    QApplication::setWindowIcon(applicationIcon());
    application.setStyleSheet(styleSheet());
    speakJapanese(application);
}

QPixmap logo(int height) {
    return applicationIcon().pixmap(height, height);
}

} // namespace kurbo
