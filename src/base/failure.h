#pragma once

#include <QString>

#include <cstdint>

namespace kurbo {

// What a procedure refuses in its own words: shown to the person, never logged.
class Complaint {
  public:
    explicit Complaint(QString description) : description_(std::move(description)) {}
    [[nodiscard]] const QString& description() const { return description_; }

  private:
    QString description_;
};

// A fault of the program, the store or a file: shown with its number, and logged.
class Fault {
  public:
    Fault(std::int64_t number, QString source, QString description)
        : number_(number), source_(std::move(source)), description_(std::move(description)) {}
    [[nodiscard]] std::int64_t number() const { return number_; }
    [[nodiscard]] const QString& source() const { return source_; }
    [[nodiscard]] const QString& description() const { return description_; }

  private:
    std::int64_t number_;
    QString source_;
    QString description_;
};

// Numbers of file faults.
enum class FileError : std::int64_t {
    NotFound = 53,
    AlreadyOpen = 55,
    DeviceIo = 57,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    NotReady = 71,
    PathAccess = 75,
    PathNotFound = 76,
};

// The fault for a failed file operation on `path`; `systemError` is the operation's errno.
[[nodiscard]] Fault fileFault(int systemError, const QString& path);

// Lines of one message, joined by CR LF.
template <typename... Lines>
[[nodiscard]] QString lines(const QString& first, const Lines&... rest) {
    QString text = first;
    ((text += QStringLiteral("\r\n") + rest), ...);
    return text;
}

} // namespace kurbo
