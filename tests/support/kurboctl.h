#pragma once

#include "support/desk.h"

#include <QProcess>

#include <functional>

namespace kurbo::test {

struct Outcome {
    int exit = -1;
    QString out;
    QString err;
};

// Runs kurboctl to its end. `inChild` runs in the new process just before the program does.
inline Outcome kurboctl(const QStringList& arguments, const QString& input = {},
                        const std::function<void()>& inChild = {}) {
    QProcess process;
    if (inChild) process.setChildProcessModifier(inChild);
    process.start(QStringLiteral(KURBO_BIN "/kurboctl"), arguments);
    process.write(input.toUtf8());
    process.closeWriteChannel();
    if (!process.waitForFinished(120000)) ADD_FAILURE() << "kurboctl did not end";
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
}

} // namespace kurbo::test
