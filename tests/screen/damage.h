#pragma once

#include "base/failure.h"
#include "support/desk.h"

#include <functional>

namespace kurbo::test {

// A file that is there is removed first: cutting it short would wait for the disk.
inline void put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    file.remove();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) ADD_FAILURE() << path;
}

// Whether the work ends in the complaint about a foreign file; any other failure goes on to the test.
inline bool refused(const std::function<void()>& work) {
    try {
        work();
    } catch (const Complaint& complaint) {
        EXPECT_EQ(complaint.description(), u"ファイル形式が異なります。"_q);
        return true;
    }
    return false;
}

// Every beginning of the bytes, and the bytes with one bit of each of some hundred places turned.
inline QList<QByteArray> damaged(const QByteArray& bytes) {
    QList<QByteArray> all;
    for (qsizetype size = 0; size < bytes.size(); ++size) all.append(bytes.left(size));
    const qsizetype step = bytes.size() / 400 + 1;
    for (qsizetype place = 0; place < bytes.size(); place += step) {
        all.append(bytes);
        all.back()[place] = static_cast<char>(bytes[place] ^ (1 << (place % 8)));
    }
    return all;
}

} // namespace kurbo::test
