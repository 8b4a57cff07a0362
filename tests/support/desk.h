#pragma once

#include "base/failure.h"
#include "base/guard.h"
#include "support/scripted_prompts.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>
#include <unistd.h>

inline std::ostream& operator<<(std::ostream& stream, const QString& text) {
    return stream << text.toStdString();
}

namespace kurbo::test {

using namespace std::chrono_literals;

inline QString operator""_q(const char16_t* text, std::size_t length) {
    return QString::fromUtf16(text, static_cast<qsizetype>(length));
}

// A folder of its own, a clock that stands still, and a script of messages.
struct Desk {
    // Others may look into the folder, and not write.
    Desk() { QFile::setPermissions(folder.path(), QFile::Permissions(0x7755)); }

    QTemporaryDir folder;
    ScriptedPrompts prompts;
    FixedClock clock{at(*makeDay(2026, 4, 15), 9, 0)};
    Paths paths = pathsIn(folder.path());
    NoProgress progress;
    Context context{prompts, clock, paths, progress};

    [[nodiscard]] QString file(const QString& name) const { return folder.filePath(name); }
};

// The words of the complaint of a body, the number of its fault, or nothing.
template <typename Body>
QString refusalOf(Body body) {
    try {
        body();
    } catch (const Complaint& complaint) {
        return complaint.description();
    } catch (const Fault& fault) {
        return QString::number(fault.number());
    }
    return {};
}

// While it lives, the test runs without the rights of root.
class AsNobody final {
  public:
    AsNobody() : root_(::geteuid() == 0) {
        if (root_ && ::seteuid(65534) != 0) ADD_FAILURE() << "still root";
    }
    ~AsNobody() {
        if (root_ && ::seteuid(0) != 0) ADD_FAILURE() << "not root again";
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

  private:
    bool root_;
};

} // namespace kurbo::test
