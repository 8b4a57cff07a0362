#pragma once

#include <QString>

namespace kurbo {

// What a long step shows while it runs.
class Progress {
  public:
    virtual ~Progress() = default;
    // `maximum` 0: the end is unknown, the bar only moves.
    virtual void begin(const QString& text, int maximum) = 0;
    virtual void step(int value) = 0;
    virtual void end() = 0;
};

// For places where nobody watches.
class NoProgress final : public Progress {
  public:
    void begin(const QString& /*text*/, int /*maximum*/) override {}
    void step(int /*value*/) override {}
    void end() override {}
};

} // namespace kurbo
