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
    // The person has closed it: a step that can be given up asks now and then.
    [[nodiscard]] virtual bool stopped() { return false; }
};

// Shows a progress for as long as it lives.
class Shown final {
  public:
    Shown(Progress& progress, const QString& text, int maximum) : progress_(progress) {
        progress_.begin(text, maximum);
    }
    ~Shown() { progress_.end(); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

  private:
    Progress& progress_;
};

// For places where nobody watches.
class NoProgress final : public Progress {
  public:
    void begin(const QString& /*text*/, int /*maximum*/) override {}
    void step(int /*value*/) override {}
    void end() override {}
};

} // namespace kurbo
