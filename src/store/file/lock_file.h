#pragma once

#include "base/system/file_lock.h"

#include <QString>

#include <functional>

namespace kurbo {

using WaitNotice = std::function<void()>;

// The lock file beside a database: as long as one client is connected it is there. What counts are the locks on its
// bytes, which belong to a client's open file and are given back when it dies:
//
//   bytes 0 to 7               no lock; the number of the next ticket in the machine's byte order, 0 in a new file
//   byte 0x40000000            presence: every client holds it shared while it is connected; a compaction holds it
//                              alone, as does who removes the file
//   byte 0x40000001            the hand-out: a writer holds it alone while it takes its ticket's number
//   bytes from 0x40000100 on   the tickets, 4096 bytes used over and over (the number modulo 4096): the owner holds the
//                              ticket's byte alone until its turn is over; whoever has the next ticket waits to share
//                              it
//
// So writers are served first come, first served, and each waits for one other. The contents are never trusted: where
// two have got one number, its byte keeps them apart. The locked bytes lie behind the end of the file.
class LockFile final {
  public:
    // "store.mdb" has "store.ldb"; the folder's name and the letters' case stay. Any other name gets ".ldb" behind it.
    [[nodiscard]] static QString nameFor(const QString& databasePath);
    // The same with ".BAK", for the copy that a compaction makes.
    [[nodiscard]] static QString copyNameFor(const QString& databasePath);

    LockFile() = default;
    ~LockFile() { leave(); }
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    // Says that this client is connected; waits while the file is being compacted. False where no lock file can be
    // made, that is in a folder without the right to write. Throws a Fault when the time is over, on a full disk, and
    // where the lock file's name is a link's.
    [[nodiscard]] bool join(const QString& databasePath, Deadline until, const WaitNotice& notice);
    // The last one out removes the file.
    void leave();
    [[nodiscard]] bool joined() const { return file_.get() >= 0; }

    // Takes the next ticket and waits until all earlier ones are given back. False when the time is over; the place in
    // the queue is then lost.
    [[nodiscard]] bool waitTurn(Deadline until, const WaitNotice& notice);
    void endTurn();

    // Takes the database for this client alone: false when a lock file is there or somebody connects at this moment.
    [[nodiscard]] bool claim(const QString& databasePath);

    // Whether a client is connected at this moment; a lock file that a crash has left doesn't count.
    [[nodiscard]] static bool isHeld(const QString& databasePath);

    // Deletes a lock file that nobody holds; does nothing in any other case.
    static void removeStale(const QString& databasePath);

  private:
    [[nodiscard]] std::uint64_t takeTicket();

    QString path_;
    Descriptor file_;
    std::int64_t ticketByte_ = -1;
};

} // namespace kurbo
