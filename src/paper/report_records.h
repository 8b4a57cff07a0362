#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace kurbo {

// As much of the text as that many bytes of the code page hold; a character that doesn't fit is left out whole.
[[nodiscard]] QString cutToBytes(const QString& text, int bytes);

// A report's local record set: text fields of fixed width, without a connection.
class ReportRecords final {
  public:
    struct Field {
        const char16_t* name;
        int bytes;
    };
    explicit ReportRecords(std::vector<Field> fields) : fields_(std::move(fields)) {}

    // Adds a record of one text a field, each of the first `cut` fields cut to its width.
    void AddNew(QStringList cells, std::size_t cut = SIZE_MAX);
    [[nodiscard]] int count() const { return static_cast<int>(records_.size()); }
    // Empty for a field that there isn't, and behind the last record.
    [[nodiscard]] QString text(int record, QStringView field) const;
    // By the field's index.
    [[nodiscard]] const QString& text(int record, int field) const { return records_.at(record).at(field); }
    // -1 for a field that there isn't.
    [[nodiscard]] int fieldNamed(QStringView name) const;

  private:
    std::vector<Field> fields_;
    QList<QStringList> records_;
};

} // namespace kurbo
