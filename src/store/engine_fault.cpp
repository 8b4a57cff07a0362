#include "store/engine_fault.h"

#include <sqlite3.h>

#include <QFileInfo>

#include <array>
#include <cerrno>

namespace kurbo {
namespace {

struct StoreText {
    StoreError number;
    const char16_t* text;
};

constexpr std::array storeTexts{
    StoreText{StoreError::WrongPassword, u"データベースのパスワードが正しくありません。"},
    StoreText{StoreError::DuplicateKey,
              u"インデックス、主キー、またはリレーションシップで値が重複しているので、テーブルを変更できませんでした。"
              u"もう一度実行して下さい。"},
    StoreText{StoreError::NoFile,
              u"データベースファイルが見つかりません。データベースファイルの保存場所を確認して下さい。"},
    StoreText{StoreError::ReadOnly, u"データベースファイルまたはフォルダが読み取り専用のため、書き込めません。"
                                    u"管理者に書き込みの許可を依頼して下さい。"},
    StoreText{StoreError::NoDrive, u"ディスクまたはネットワークを読み書きできません。"
                                   u"マシンの電源とネットワーク接続を確認してから、もう一度実行して下さい。"},
    StoreText{StoreError::NoPath,
              u"データベースファイルのパスが見つかりません。データベースファイルの保存場所を確認して下さい。"},
    StoreText{StoreError::Moved, u"データベースファイルが置き換えられたか、接続が切れました。もう一度実行して下さい。"},
    StoreText{StoreError::Damaged,
              u"データベースファイルが壊れています。管理者にバックアップからの復旧を依頼して下さい。"},
    StoreText{StoreError::NoAccess,
              u"データベースファイルを開く許可がありません。管理者にファイルの許可の確認を依頼して下さい。"},
    StoreText{StoreError::Syntax, u"クエリ式の構文が正しくありません。"},
    StoreText{StoreError::NoTable, u"テーブルまたはフィールドが見つかりません。"},
    StoreText{StoreError::DiskFull, u"ディスクの空き容量が不足しているため、データを書き込めません。"
                                    u"不要なファイルを削除してから、もう一度実行して下さい。"},
    StoreText{StoreError::RowGone, u"変更するレコードが見つかりません。他のユーザーが削除した可能性があります。"
                                   u"表示し直してから、もう一度実行して下さい。"},
    StoreText{StoreError::MissingParent,
              u"関連するテーブルに必要なレコードが無いため、レコードの追加や変更はできません。"},
    StoreText{StoreError::Busy, u"他のユーザーがデータベースを使用しているため、実行できませんでした。"
                                u"しばらく待ってから、もう一度実行して下さい。"},
    StoreText{StoreError::BadValue, u"フィールドに入力できない値です。"},
    StoreText{StoreError::NotMdb, u"データベースの形式を認識できません。"},
    StoreText{StoreError::Newer, u"新しいバージョンで作成されたデータベースファイルです。"
                                 u"アプリケーションを更新して下さい。"},
    StoreText{StoreError::Opened, u"データベースファイルは他のユーザーが使用しているため、排他的に開けません。"},
    StoreText{StoreError::Other, u"データベースエンジンでエラーが発生しました。"},
};

struct EngineCode {
    int result;
    StoreError number;
};

// Extended codes stand before the primary codes that they belong to.
constexpr std::array engineCodes{
    EngineCode{SQLITE_CONSTRAINT_PRIMARYKEY, StoreError::DuplicateKey},
    EngineCode{SQLITE_CONSTRAINT_UNIQUE, StoreError::DuplicateKey},
    EngineCode{SQLITE_CONSTRAINT_ROWID, StoreError::DuplicateKey},
    EngineCode{SQLITE_CONSTRAINT_FOREIGNKEY, StoreError::MissingParent},
    EngineCode{SQLITE_CONSTRAINT, StoreError::BadValue},
    EngineCode{SQLITE_MISMATCH, StoreError::BadValue},
    EngineCode{SQLITE_TOOBIG, StoreError::BadValue},
    EngineCode{SQLITE_BUSY, StoreError::Busy},
    EngineCode{SQLITE_LOCKED, StoreError::Busy},
    EngineCode{SQLITE_FULL, StoreError::DiskFull},
    EngineCode{SQLITE_READONLY_DBMOVED, StoreError::Moved},
    EngineCode{SQLITE_READONLY, StoreError::ReadOnly},
    EngineCode{SQLITE_PERM, StoreError::NoAccess},
    EngineCode{SQLITE_AUTH, StoreError::NoAccess},
    EngineCode{SQLITE_CANTOPEN, StoreError::NoAccess},
    EngineCode{SQLITE_NOTADB, StoreError::NotMdb},
    EngineCode{SQLITE_CORRUPT, StoreError::Damaged},
    EngineCode{SQLITE_IOERR, StoreError::NoDrive},
};

StoreError numberOf(sqlite3* database, int result) {
    // A write that the file system refuses for want of room comes as an input/output error.
    const int systemError = database ? sqlite3_system_errno(database) : 0;
    if ((result & 0xff) == SQLITE_IOERR && (systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG))
        return StoreError::DiskFull;
    for (const auto& code : engineCodes)
        if (code.result == result || code.result == (result & 0xff)) return code.number;
    if (result == SQLITE_ERROR && database) {
        const QString text = QString::fromUtf8(sqlite3_errmsg(database));
        if (text.startsWith(QStringLiteral("no such"))) return StoreError::NoTable;
        if (text.contains(QStringLiteral("syntax error")) || text.startsWith(QStringLiteral("ambiguous")))
            return StoreError::Syntax;
    }
    return StoreError::Other;
}

bool explainsItself(StoreError number) {
    return number != StoreError::Other && number != StoreError::NoTable && number != StoreError::Syntax;
}

} // namespace

QString duplicateKeyText() {
    return QStringLiteral(
        "インデックス、主キー、またはリレーションシップで値が重複しているので、テーブルを変更できませんでした。");
}

bool isDuplicateKey(const Fault& fault) {
    return fault.description().left(51) == duplicateKeyText();
}

Fault storeFault(StoreError number, const QString& detail) {
    QString text;
    for (const auto& known : storeTexts)
        if (known.number == number) text = QString::fromUtf16(known.text);
    return {static_cast<std::int64_t>(number), QStringLiteral("Kurbo.Store"),
            detail.isEmpty() ? text : lines(text, detail)};
}

Fault syntaxFault(QStringView statement) {
    constexpr qsizetype enough = 60;
    return storeFault(StoreError::Syntax, statement.trimmed().left(enough).toString());
}

Fault engineFault(sqlite3* database, int result, const QString& path) {
    const StoreError number = numberOf(database, result);
    if (number == StoreError::NoAccess && !path.isEmpty() && !QFileInfo::exists(path))
        return missingFault(ENOENT, path);
    return storeFault(number, explainsItself(number) ? QString() : QString::fromUtf8(sqlite3_errmsg(database)));
}

Fault missingFault(int systemError, const QString& path) {
    const bool drive = systemError != ENOENT && systemError != ENOTDIR && systemError != EACCES;
    if (systemError == EACCES) return storeFault(StoreError::NoAccess, path);
    if (drive) return storeFault(StoreError::NoDrive, path);
    const bool folderThere = QFileInfo(QFileInfo(path).absolutePath()).isDir();
    return storeFault(folderThere ? StoreError::NoFile : StoreError::NoPath, path);
}

} // namespace kurbo
