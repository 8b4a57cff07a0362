#pragma once

#include "base/prompts.h"

#include <gtest/gtest.h>

#include <QString>

#include <deque>
#include <optional>

namespace kurbo {

// The person in a test: expects the messages in their order and gives the answers. A message that was not expected
// fails the test, and so does an expectation that was not met.
class ScriptedPrompts final : public Prompts {
  public:
    ScriptedPrompts() = default;
    ~ScriptedPrompts() override {
        for (const auto& [part, answer] : expected_) ADD_FAILURE() << "not shown: " << part.toStdString();
        if (!files_.empty()) ADD_FAILURE() << files_.size() << " file dialog(s) not shown";
    }
    ScriptedPrompts(const ScriptedPrompts&) = delete;
    ScriptedPrompts& operator=(const ScriptedPrompts&) = delete;

    ScriptedPrompts& expect(const QString& textPart, Answer answer = Answer::Ok) {
        expected_.push_back({textPart, answer});
        return *this;
    }

    ScriptedPrompts& expectFile(std::optional<QString> file) {
        files_.push_back(std::move(file));
        return *this;
    }

    Answer ask(const Message& message) override {
        last_ = message;
        if (expected_.empty()) {
            ADD_FAILURE() << "unexpected: " << message.text.toStdString();
            return message.preset;
        }
        const auto [part, answer] = expected_.front();
        expected_.pop_front();
        EXPECT_TRUE(message.text.contains(part)) << message.text.toStdString() << "\nexpected: " << part.toStdString();
        return answer;
    }

    std::optional<QString> openFile(const QString& /*filter*/) override {
        if (files_.empty()) {
            ADD_FAILURE() << "unexpected file dialog";
            return std::nullopt;
        }
        const auto file = files_.front();
        files_.pop_front();
        return file;
    }

    [[nodiscard]] const Message& last() const { return last_; }
    [[nodiscard]] bool allShown() const { return expected_.empty() && files_.empty(); }

  private:
    struct Expected {
        QString part;
        Answer answer;
    };
    std::deque<Expected> expected_;
    std::deque<std::optional<QString>> files_;
    Message last_;
};

} // namespace kurbo
