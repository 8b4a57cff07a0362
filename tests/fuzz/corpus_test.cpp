#include "fuzz/targets.h"
#include "support/desk.h"

#include <QDir>

namespace kurbo::test {

TEST(Corpus, EachFileIsReadOrRefusedInWords) {
    const struct {
        QString folder;
        void (*target)(const QByteArray&);
    } readers[] = {{u"csv"_q, fuzzCsv}, {u"grid"_q, fuzzGrid}, {u"archive"_q, fuzzArchive}};
    for (const auto& reader : readers) {
        const QDir corpus(QStringLiteral(KURBO_CORPUS "/") + reader.folder);
        const QStringList names = corpus.entryList(QDir::Files);
        EXPECT_GT(names.size(), 4) << reader.folder;
        for (const QString& name : names) {
            QFile file(corpus.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            EXPECT_NO_THROW(reader.target(file.readAll())) << file.fileName();
        }
    }
}

} // namespace kurbo::test
