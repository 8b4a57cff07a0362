#pragma once

#include <QList>
#include <QString>

namespace kurbo {

// A grid's drop-down list: entries "#code;text" or "text", parted by "|". With a "|" in front other text may be typed,
// and an empty entry is offered.
class GridList final {
  public:
    struct Entry {
        QString code; // the text itself where the entry has none
        QString text;
    };

    GridList() = default;
    explicit GridList(const QString& list);

    // The list as it was given.
    [[nodiscard]] const QString& source() const { return source_; }
    [[nodiscard]] bool isEmpty() const { return entries_.isEmpty(); }
    [[nodiscard]] bool isOpen() const { return open_; }
    [[nodiscard]] const QList<Entry>& entries() const { return entries_; }
    // What is shown for a held code, and what is held for a shown text; each gives an unknown text back.
    [[nodiscard]] QString textOf(const QString& code) const;
    [[nodiscard]] QString codeOf(const QString& text) const;
    [[nodiscard]] bool hasText(const QString& text) const;

  private:
    QString source_;
    QList<Entry> entries_;
    bool open_ = false;
};

} // namespace kurbo
