#pragma once

#include "base/system/file_lock.h"

#include <QByteArray>
#include <QString>

#include <sys/types.h>

namespace kurbo {

// The program's own files. Others may write in their folders as well: a link at the name is never followed, and nothing
// but a regular file that has this one name is opened. Without a descriptor errno says why, ELOOP for such a thing.

// For its maker alone, until it is shared.
inline constexpr mode_t ownersMode = 0600;
// What the umask leaves of it.
inline constexpr mode_t commonMode = 0666;

// A file that is there. `access` is O_RDONLY, O_WRONLY or O_RDWR, also with O_APPEND.
[[nodiscard]] Descriptor openPlain(const QString& path, int access);
// A new file for reading and writing; EEXIST where anything has the name.
[[nodiscard]] Descriptor makePlain(const QString& path, mode_t mode);
// A file that is there, or a new one.
[[nodiscard]] Descriptor openOrMakePlain(const QString& path, int access, mode_t mode);

// Throws a Fault that names `path`.
void writeAll(int descriptor, const QByteArray& bytes, const QString& path);

// Gives an open file the group and the permissions of the file `model`. False when it can't: where only the group can't
// be given, the own group gets no more than everybody.
[[nodiscard]] bool shareLike(int descriptor, const QString& model);

// A new file while it is made: gone again unless it is put in the place of another. No connection may have it open when
// it is put there or goes.
class FreshFile final {
  public:
    // Throws a Fault, also where anything has the name.
    explicit FreshFile(const QString& path);
    // Under a name of its own beside `target`, which faults name.
    [[nodiscard]] static FreshFile beside(const QString& target, mode_t mode = ownersMode);
    ~FreshFile();
    FreshFile(FreshFile&& other) noexcept = default;
    FreshFile(const FreshFile&) = delete;
    FreshFile& operator=(const FreshFile&) = delete;

    [[nodiscard]] const QString& path() const { return path_; }
    void write(const QByteArray& bytes) const { writeAll(file_.get(), bytes, told_); }
    [[nodiscard]] bool shareLike(const QString& model) const { return kurbo::shareLike(file_.get(), model); }
    // Returns when its bytes are on the disk to stay. Throws a Fault, also where the name is another file's by now.
    void sync() const;
    // Synced before; the change lasts through a power cut. Throws a Fault and leaves `target`.
    void putOver(const QString& target);

  private:
    FreshFile(const QString& path, mode_t mode, const QString& told);

    const QString path_;
    const QString told_;
    Descriptor file_;
};

} // namespace kurbo
