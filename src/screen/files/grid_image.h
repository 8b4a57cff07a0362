#pragma once

#include <QtGlobal>

// What the writing and the reading of a grid's file share.
namespace kurbo::gridimage {

constexpr int maxRows = 200'000;
constexpr int maxColumns = 64;
constexpr int maxCellLength = 32'767;
constexpr int maxListLength = 1'000'000;
constexpr int maxWidth = 1'000'000; // twips
constexpr qint64 maxBytes = 32LL * 1024 * 1024;

constexpr char16_t formatName[] = u"kurbo-grid";
constexpr int formatVersion = 1;
// In the place of a colour's column.
constexpr int wholeRow = -1;

} // namespace kurbo::gridimage
