#include "screen/files/archive.h"

#include "base/system/files.h"
#include "screen/files/foreign_file.h"

#include <QFileInfo>
#include <QList>

#include <algorithm>
#include <memory>
#include <new>
#include <zip.h>

namespace kurbo {
namespace {

constexpr int maxMembers = 16;
constexpr qint64 maxMemberBytes = 48LL * 1024 * 1024; // of all members together
constexpr qint64 maxArchiveBytes = maxMemberBytes + 64LL * 1024;
constexpr QStringView listedLast = u"Text.tmp";

struct Free {
    void operator()(zip_t* zip) const { zip_discard(zip); }
    void operator()(zip_source_t* source) const { zip_source_free(source); }
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using Zip = std::unique_ptr<zip_t, Free>;
using Source = std::unique_ptr<zip_source_t, Free>;

// An archive within its limits, as it is read and before it is written.
struct Member {
    QString name;
    zip_uint64_t index = 0;
    qsizetype size = 0;
    QByteArray bytes;
};

// All work on archives is done in memory, where nothing but memory can fail.
void must(bool done) {
    if (!done) throw std::bad_alloc();
}

Source sourceOf(const QByteArray& bytes) {
    Source source(zip_source_buffer_create(bytes.constData(), static_cast<zip_uint64_t>(bytes.size()), 0, nullptr));
    must(source != nullptr);
    return source;
}

Zip opened(const QByteArray& bytes) {
    Source source = sourceOf(bytes);
    Zip zip(zip_open_from_source(source.get(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr));
    if (!zip) throw foreignFile();
    (void)source.release(); // the archive's now
    return zip;
}

bool isPlainName(const QString& name) {
    const auto isLetter = [](QChar sign) { return sign < u'\x80' && sign.isLetterOrNumber(); };
    return !name.isEmpty() && name.size() <= 255 && isLetter(name.front()) &&
           std::ranges::all_of(name, [&](QChar sign) { return isLetter(sign) || QStringView(u".-_").contains(sign); });
}

bool isSound(const zip_stat_t& stat) {
    constexpr zip_uint64_t needed = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_COMP_METHOD | ZIP_STAT_ENCRYPTION_METHOD;
    return (stat.valid & needed) == needed && stat.encryption_method == ZIP_EM_NONE &&
           (stat.comp_method == ZIP_CM_STORE || stat.comp_method == ZIP_CM_DEFLATE) && stat.size <= maxMemberBytes;
}

Member memberAt(zip_t* zip, zip_uint64_t index) {
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_stat_index(zip, index, ZIP_FL_ENC_RAW, &stat) != 0 || !isSound(stat)) throw foreignFile();
    return {
        .name = QString::fromLatin1(stat.name), .index = index, .size = static_cast<qsizetype>(stat.size), .bytes = {}};
}

// Throws unless the members are what an archive holds.
void check(const QList<Member>& members) {
    QStringList names;
    qint64 size = 0;
    for (const Member& member : members) {
        if (!isPlainName(member.name) || names.contains(member.name)) throw foreignFile();
        names.append(member.name);
        size += member.size;
    }
    if (members.size() > maxMembers || size > maxMemberBytes) throw foreignFile();
}

// The members as they are listed, still without their bytes.
QList<Member> membersOf(zip_t* zip) {
    const zip_int64_t count = zip_get_num_entries(zip, 0);
    if (count > maxMembers) throw foreignFile();
    QList<Member> members;
    for (zip_int64_t index = 0; index < count; ++index) members.append(memberAt(zip, static_cast<zip_uint64_t>(index)));
    check(members);
    std::stable_partition(members.begin(), members.end(),
                          [](const Member& member) { return member.name != listedLast; });
    return members;
}

QList<Member> membersOf(const QString& archive) {
    const QByteArray bytes = readForeignFile(archive, maxArchiveBytes);
    return membersOf(opened(bytes).get());
}

// Room for one byte more than declared: the last read then meets the end, where the library compares size and checksum.
QByteArray bytesOf(zip_t* zip, const Member& member) {
    const std::unique_ptr<zip_file_t, Free> file(zip_fopen_index(zip, member.index, 0));
    if (!file) throw foreignFile();
    QByteArray bytes(member.size + 1, Qt::Uninitialized);
    qsizetype done = 0;
    while (done <= member.size) {
        const zip_int64_t got =
            zip_fread(file.get(), bytes.data() + done, static_cast<zip_uint64_t>(bytes.size() - done));
        if (got < 0) throw foreignFile();
        if (got == 0) break;
        done += got;
    }
    if (done != member.size) throw foreignFile();
    bytes.truncate(done);
    return bytes;
}

// The members with their bytes; none of a missing archive.
QList<Member> loaded(const QString& archive) {
    if (!QFileInfo::exists(archive)) return {};
    const QByteArray bytes = readForeignFile(archive, maxArchiveBytes);
    const Zip zip = opened(bytes);
    QList<Member> members = membersOf(zip.get());
    for (Member& member : members) member.bytes = bytesOf(zip.get(), member);
    return members;
}

QByteArray written(zip_source_t* source) {
    zip_stat_t stat;
    zip_stat_init(&stat);
    must(zip_source_stat(source, &stat) == 0 && zip_source_open(source) == 0);
    QByteArray bytes(static_cast<qsizetype>(stat.size), Qt::Uninitialized);
    must(zip_source_read(source, bytes.data(), stat.size) == static_cast<zip_int64_t>(stat.size));
    zip_source_close(source);
    return bytes;
}

// zip_close() releases its source; zip_source_keep() leaves one reference to read from.
QByteArray zipped(const QList<Member>& members) {
    const Source target = sourceOf({});
    Zip zip(zip_open_from_source(target.get(), ZIP_CREATE | ZIP_TRUNCATE, nullptr));
    must(zip != nullptr);
    zip_source_keep(target.get());
    for (const Member& member : members) {
        Source source = sourceOf(member.bytes);
        must(zip_file_add(zip.get(), member.name.toUtf8().constData(), source.get(), 0) >= 0);
        (void)source.release();
    }
    must(zip_close(zip.get()) == 0);
    (void)zip.release();
    return written(target.get());
}

} // namespace

void ArchiveAdd(const QString& archive, const QString& file) {
    QList<Member> members = loaded(archive);
    const QByteArray bytes = readForeignFile(file, maxMemberBytes);
    const Member added{.name = QFileInfo(file).fileName(), .index = 0, .size = bytes.size(), .bytes = bytes};
    const auto same = std::ranges::find(members, added.name, &Member::name);
    if (same != members.end())
        *same = added;
    else
        members.append(added);
    check(members);
    replaceFile(archive, zipped(members));
}

void ArchiveExtract(const QString& archive, const QString& member, const QString& toFile) {
    const QByteArray bytes = readForeignFile(archive, maxArchiveBytes);
    const Zip zip = opened(bytes);
    const QList<Member> members = membersOf(zip.get());
    const auto found = std::ranges::find(members, member, &Member::name);
    if (found == members.end()) throw foreignFile();
    replaceFile(toFile, bytesOf(zip.get(), *found));
}

int ArchiveCount(const QString& archive) {
    return static_cast<int>(membersOf(archive).size());
}

QString ArchiveName(const QString& archive, int index) {
    const QList<Member> members = membersOf(archive);
    if (index < 0 || index >= members.size()) throw foreignFile();
    return members[index].name;
}

} // namespace kurbo
