#pragma once

#include "demo/demo_company.h"
#include "store/file/database_file.h"

#include <QDir>
#include <QFile>

namespace kurbo::bench {

// A large demo company, made once and kept in the system's folder for temporary files.
inline QString keptCompany(const QString& name, const DemoOptions& options) {
    const QString path = QDir::temp().filePath(name);
    if (QFile::exists(path)) return path;
    const QString half = path + QStringLiteral(".half");
    QFile::remove(half);
    createDatabase(half);
    {
        Connection connection;
        connection.open(half, databasePassword());
        makeDemoCompany(connection, options);
    }
    QFile::rename(half, path);
    return path;
}

} // namespace kurbo::bench
