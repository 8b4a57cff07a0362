#include "shell/single_instance.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace kurbo
