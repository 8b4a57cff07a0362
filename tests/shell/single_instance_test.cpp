#include "shell/single_instance.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include <optional>

namespace kurbo {
namespace {

TEST(SingleInstance, OneClientPerApplicationFolder) {
    const QTemporaryDir folder;
    const QTemporaryDir other;
    std::optional<SingleInstance> first(folder.path());
    EXPECT_TRUE(first->isFirst());
    EXPECT_FALSE(SingleInstance(folder.path() + u'/').isFirst());
    EXPECT_TRUE(SingleInstance(other.path()).isFirst());
    first.reset();
    EXPECT_TRUE(SingleInstance(folder.path()).isFirst());
}

TEST(Program, LetsNobodyChooseTheTimeOfAPunch) {
    const QString program = QStringLiteral(KURBO_BIN "/kurbo");
    for (const QString& option : {QStringLiteral("--at=2026/04/15 09:00:00"), QStringLiteral("--today=2026/04/15")})
        EXPECT_EQ(QProcess::execute(program, {option, QStringLiteral("--version")}), 1);
}

} // namespace
} // namespace kurbo
