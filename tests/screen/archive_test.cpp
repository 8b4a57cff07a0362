#include "screen/damage.h"
#include "screen/files/archive.h"

#include "base/system/files.h"

#include <QDir>

namespace kurbo::test {
namespace {

// A folder "work" with "Kurbo.tmp" and "Text.tmp", and an archive of both.
class ArchiveTest : public ::testing::Test {
  protected:
    ArchiveTest() {
        QDir(desk.folder.path()).mkdir(u"work"_q);
        add(u"Text.tmp"_q, "\"S01\"\r\n");
        add(u"Kurbo.tmp"_q, QByteArray("grid ").repeated(50));
        sound = readFile(archive);
    }
    void add(const QString& name, const QByteArray& bytes) {
        put(file(name), bytes);
        ArchiveAdd(archive, file(name));
        QFile::remove(file(name));
    }
    [[nodiscard]] QString file(const QString& name) const { return desk.file(u"work/"_q + name); }
    [[nodiscard]] QString names() const {
        QStringList all;
        for (int index = 0; index < ArchiveCount(archive); ++index) all.append(ArchiveName(archive, index));
        return all.join(u' ');
    }
    [[nodiscard]] QByteArray extracted(const QString& member) const {
        ArchiveExtract(archive, member, file(u"out"_q));
        return readFile(file(u"out"_q));
    }
    [[nodiscard]] QStringList files() const {
        constexpr auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        return QDir(file({})).entryList(all) + QDir(desk.folder.path()).entryList(all);
    }
    // Every operation on the archive, each of which may refuse.
    [[nodiscard]] int refusals() const {
        return refused([&] { (void)names(); }) + refused([&] { (void)extracted(u"Text.tmp"_q); }) +
               refused([&] { (void)extracted(u"Kurbo.tmp"_q); });
    }

    Desk desk;
    QString archive = file(u"a.krb"_q);
    QByteArray sound;
};

// Sets the bytes at an offset into each local header and one into each entry of the directory.
QByteArray patched(QByteArray bytes, int local, int central, const QByteArray& value) {
    for (qsizetype at = bytes.indexOf("PK\3\4"); at >= 0; at = bytes.indexOf("PK\3\4", at + 1))
        bytes.replace(at + local, value.size(), value);
    for (qsizetype at = bytes.indexOf("PK\1\2"); at >= 0; at = bytes.indexOf("PK\1\2", at + 1))
        bytes.replace(at + central, value.size(), value);
    return bytes;
}

TEST_F(ArchiveTest, KeepsAndListsMembers) {
    EXPECT_EQ(names(), u"Kurbo.tmp Text.tmp"_q) << "the text is last, though it was first";
    add(u"Text.tmp"_q, "new");
    add(u"Kurbo.tmp"_q, "");
    EXPECT_EQ(names(), u"Kurbo.tmp Text.tmp"_q);
    EXPECT_EQ(extracted(u"Text.tmp"_q) + '|' + extracted(u"Kurbo.tmp"_q), "new|");
    add(u"Total.tmp"_q, QByteArray(100'000, 'x'));
    EXPECT_EQ(names(), u"Kurbo.tmp Total.tmp Text.tmp"_q);
    EXPECT_EQ(extracted(u"Total.tmp"_q), QByteArray(100'000, 'x'));
    EXPECT_TRUE(refused([&] { (void)ArchiveName(archive, 3); }));
    EXPECT_TRUE(refused([&] { (void)extracted(u"Other.tmp"_q); }));
    EXPECT_THROW((void)ArchiveCount(file(u"missing"_q)), Fault);
    EXPECT_THROW(ArchiveAdd(archive, file(u"missing"_q)), Fault);
    EXPECT_TRUE(refused([&] { add(u"a b.tmp"_q, "x"); }));
    sound = readFile(archive);
    put(file(u"Text.tmp"_q), "newer");
    {
        const AsNobody nobody;
        EXPECT_THROW(ArchiveAdd(archive, file(u"Text.tmp"_q)), Fault);
    }
    EXPECT_EQ(readFile(archive), sound);
}

TEST_F(ArchiveTest, HostileArchivesAreRefused) {
    const auto renamed = [&](const char* from, const QByteArray& to) { return QByteArray(sound).replace(from, to); };
    add(u"Test.tmp"_q, "x");
    QByteArray three = readFile(archive);
    const std::pair<const char*, QByteArray> cases[] = {
        {"folder above", renamed("Text.tmp", "../x.tmp")},
        {"absolute path", renamed("Text.tmp", "/etc/xxx")},
        {"backslash", renamed("Text.tmp", "..\\x.tmp")},
        {"NUL", renamed("Text.tmp", QByteArray("Text\0tmp", 8))},
        {"folder", renamed("Text.tmp", "Textttt/")},
        {"one name twice", three.replace("Test.tmp", "Text.tmp")},
        {"encrypted", patched(sound, 6, 8, QByteArray("\1", 1))},
        {"other method", patched(sound, 8, 10, QByteArray("\x0E\0", 2))},
        {"huge size", patched(sound, 22, 24, "\xF0\xFF\xFF\x7F")},
        {"more than declared", patched(sound, 22, 24, QByteArray("\1\0\0\0", 4))},
        {"wrong checksum", patched(sound, 14, 16, "abcd")},
        {"not a zip", QByteArray(1000, 'P')},
        {"no directory", sound.left(sound.indexOf("PK\1\2"))},
    };
    put(file(u"Text.tmp"_q), "new");
    const QStringList before = files();
    for (const auto& [what, bytes] : cases) {
        put(archive, bytes);
        EXPECT_GT(refusals(), 0) << what;
        EXPECT_TRUE(refused([&] { ArchiveAdd(archive, file(u"Text.tmp"_q)); })) << what;
        EXPECT_EQ(readFile(archive), bytes) << what;
        QFile::remove(file(u"out"_q));
        EXPECT_EQ(files(), before) << what;
    }
    put(archive, {});
    for (int member = 0; member < 16; ++member) add(u"m%1"_q.arg(member), "x");
    EXPECT_TRUE(refused([&] { add(u"m16"_q, "x"); })) << "too many";
    put(file(u"big"_q), {});
    EXPECT_TRUE(QFile::resize(file(u"big"_q), 48LL * 1024 * 1024));
    EXPECT_TRUE(refused([&] { ArchiveAdd(archive, file(u"big"_q)); })) << "too large together";
}

TEST_F(ArchiveTest, AnyDamageIsRefusedOrRead) {
    put(file(u"out"_q), {});
    const QStringList before = files();
    for (const QByteArray& bytes : damaged(sound)) {
        put(archive, bytes);
        EXPECT_TRUE(refusals() == 3 || bytes.isEmpty() || bytes.size() == sound.size()) << bytes.size();
        (void)refused([&] { ArchiveAdd(archive, file(u"out"_q)); });
        EXPECT_EQ(files(), before);
    }
}

} // namespace
} // namespace kurbo::test
