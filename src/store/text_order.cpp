#include "store/text_order.h"

#include <sqlite3.h>

#include <QString>

#include <algorithm>
#include <string_view>

namespace kurbo {
namespace {

unsigned char lowered(unsigned char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c | 0x20U) : c;
}

// Compares plain ASCII by itself; the first byte beyond it hands the rest over to Unicode.
int compareBytes(std::string_view left, std::string_view right) {
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto a = static_cast<unsigned char>(left[i]);
        const auto b = static_cast<unsigned char>(right[i]);
        if (a == b) continue;
        if (a >= 0x80 && b >= 0x80) {
            const auto rest = [](std::string_view text) {
                return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
            };
            // A character may begin before the byte that differs.
            std::size_t start = i;
            while (start > 0 && (static_cast<unsigned char>(left[start]) & 0xC0U) == 0x80U) --start;
            return compareText(rest(left.substr(start)), rest(right.substr(start)));
        }
        if (lowered(a) != lowered(b)) return lowered(a) < lowered(b) ? -1 : 1;
    }
    return left.size() == right.size() ? 0 : (left.size() < right.size() ? -1 : 1);
}

int collate(void* /*unused*/, int leftSize, const void* left, int rightSize, const void* right) {
    return compareBytes({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                        {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

} // namespace

int compareText(QStringView left, QStringView right) {
    return left.compare(right, Qt::CaseInsensitive);
}

void installTextOrder(sqlite3* database) {
    sqlite3_create_collation(database, "NOCASE", SQLITE_UTF8, nullptr, collate);
}

} // namespace kurbo
