#pragma once

#include "base/system/file_lock.h"

#include <QString>

#include <functional>

namespace kurbo {

using WaitNotice = std::function<void()>;

// The lock file beside a database: as long as one client is connected it is there. Its bytes are locked, never its
// contents trusted: one byte tells that somebody is connected, one guards the hand-out of tickets, and one byte a
// ticket makes the queue of writers, first come, first served. A client that dies gives back all its bytes.
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
    [[nodiscard]] bool join(const QString& databasePath, Patience until, const WaitNotice& notice);
    // The last one out removes the file.
    void leave();
    [[nodiscard]] bool joined() const { return file_.get() >= 0; }

    // Takes the next ticket and waits until all earlier ones are given back. False when the time is over; the place in
    // the queue is then lost.
    [[nodiscard]] bool waitTurn(Patience until, const WaitNotice& notice);
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
