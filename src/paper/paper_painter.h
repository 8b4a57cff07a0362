#pragma once

#include "paper/paper.h"

#include <QFont>
#include <QFontMetrics>
#include <QHash>

#include <map>
#include <memory>

class QPainter;

namespace kurbo {

// The families that hold Japanese letters, the best first.
[[nodiscard]] QStringList japaneseFamilies();

// Paints pages on one device.
class PaperPainter final {
  public:
    // The painter has begun and lives longer. `dotsPerInch` says how large a page becomes.
    PaperPainter(QPainter& painter, int dotsPerInch) : painter_(painter), dotsPerInch_(dotsPerInch) {}

    // With the sheet's corner at the painter's origin.
    void paint(const PaperPage& page);

  private:
    struct Type {
        QFont font;
        QFontMetrics metrics;
        // Texts come again and again, and measuring one costs as much as painting it.
        QHash<QString, int> widths;
    };

    [[nodiscard]] int dots(int twips) const;
    [[nodiscard]] QRect placeOf(const PaperItem& item) const;
    Type& typeOf(const PaperItem& item);
    int widthOf(Type& type, const QString& text);
    void paintEdges(const PaperItem& item);
    void paintText(const PaperItem& item);

    QPainter& painter_;
    int dotsPerInch_;
    std::map<std::pair<int, bool>, std::unique_ptr<Type>> types_;
    Type* current_ = nullptr;
};

} // namespace kurbo
