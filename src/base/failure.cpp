#include "base/failure.h"

#include <array>
#include <cerrno>

namespace kurbo {
namespace {

struct FileFault {
    int systemError;
    FileError number;
    const char16_t* text;
};

constexpr std::array fileFaults{
    FileFault{ENOENT, FileError::NotFound, u"ファイルが見つかりません。"},
    FileFault{ENOTDIR, FileError::PathNotFound, u"パスが見つかりません。"},
    FileFault{ENOSPC, FileError::DiskFull, u"ディスクの空き容量が不足しています。不要なファイルを削除して下さい。"},
    FileFault{EDQUOT, FileError::DiskFull, u"ディスクの空き容量が不足しています。不要なファイルを削除して下さい。"},
    FileFault{EFBIG, FileError::DiskFull, u"ディスクの空き容量が不足しています。不要なファイルを削除して下さい。"},
    FileFault{EACCES, FileError::PermissionDenied, u"ファイルまたはフォルダへの書き込みが許可されていません。"},
    FileFault{EPERM, FileError::PermissionDenied, u"ファイルまたはフォルダへの書き込みが許可されていません。"},
    FileFault{EROFS, FileError::PermissionDenied, u"ファイルまたはフォルダは読み取り専用です。"},
    FileFault{EISDIR, FileError::PathAccess, u"ファイルではなくフォルダが指定されています。"},
    FileFault{EEXIST, FileError::PathAccess, u"同じ名前のファイルまたはフォルダが既にあります。"},
    FileFault{ELOOP, FileError::PathAccess,
              u"リンクまたは特殊なファイルのため、書き込めません。管理者に確認を依頼して下さい。"},
    FileFault{EIO, FileError::DeviceIo, u"ディスクまたはネットワークを読み書きできません。接続を確認して下さい。"},
};

} // namespace

Fault fileFault(int systemError, const QString& path) {
    FileError number = FileError::NotReady;
    QString text = QStringLiteral("ディスクまたはネットワークの準備ができていません。接続を確認して下さい。");
    for (const auto& known : fileFaults) {
        if (known.systemError != systemError) continue;
        number = known.number;
        text = QString::fromUtf16(known.text);
    }
    return {static_cast<std::int64_t>(number), QStringLiteral("Kurbo.File"), lines(text, path)};
}

} // namespace kurbo
