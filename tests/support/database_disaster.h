#pragma once

#include "base/system/files.h"
#include "support/disaster.h"
#include "support/sample_company.h"

namespace kurbo::test {

// The sample company, written to while the disk fails.
class DatabaseDisaster : public SampleCompany {
  protected:
    using Write = std::function<bool(const Context&, Connection&)>;

    // At each call of the disk: the sum of the counts is 0 before the writing and `all` after it.
    void failAll(const Write& body, const QStringList& counts, int all, int fewestCalls) {
        connection.close();
        const QByteArray before = readFile(path);
        const auto restore = [&] {
            QFile::remove(path + u"-journal"_q);
            QFile file(path);
            EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            EXPECT_EQ(file.write(before), before.size());
        };
        const auto write = [&](const Context& context) {
            Connection own;
            own.open(path, databasePassword());
            return body(context, own);
        };
        const auto isWritten = [&] {
            const int changed = countedAfterwards(counts);
            EXPECT_TRUE(changed == 0 || changed == all);
            return changed > 0;
        };
        failEverywhere(desk, {restore, write, isWritten}, fewestCalls);
    }

  private:
    int countedAfterwards(const QStringList& counts) {
        EXPECT_TRUE(checkDatabase(path).isEmpty());
        connection.open(path, databasePassword());
        int sum = 0;
        for (const QString& statement : counts) sum += asked(statement).toInt();
        connection.close();
        return sum;
    }
};

} // namespace kurbo::test
