#include "punch/punch_clock.h"

#include "punch/record.h"
#include "punch/state.h"
#include "store/readers.h"

namespace kurbo {
namespace {

void warnNoEnter(const Context& context) {
    context.prompts.exclaim(lines(QStringLiteral("本日の出社時打刻を行っていない可能性があります。"),
                                  QStringLiteral("管理者にタイムカードの修正を依頼して下さい。")));
}

void warnNoLeave(const Context& context, const QString& date) {
    context.prompts.exclaim(
        lines(date + QStringLiteral("の退社時打刻及び本日の出社時打刻を行っていない可能性があります。"),
              QStringLiteral("管理者にタイムカードの修正を依頼して下さい。")));
}

bool continues(const Context& context, const QString& date) {
    return context.prompts.confirm(
        lines(date + QStringLiteral("の退社打刻がありません。"), date + QStringLiteral("からの継続勤務ですか？")));
}

PunchResult refuse(const Context& context, const StatusCode& state) {
    context.prompts.exclaim(state.today == DayRow::Entered ? QStringLiteral("既に出社打刻済です。打刻できません。")
                                                           : QStringLiteral("既に退社打刻済です。打刻できません。"));
    return PunchResult::Refused;
}

PunchResult ended(bool written) {
    return written ? PunchResult::Done : PunchResult::Stopped;
}

bool mayPunch(const Context& context, const Session& session) {
    if (!session.access.CanPunch)
        context.prompts.exclaim(QStringLiteral("アクセス権がありません。管理者にアクセス権の設定を依頼して下さい。"));
    return session.access.CanPunch;
}

// Has the connection's turn among the writers until a message comes up: nobody else waits while a person reads.
class TurnUntilMessage final : public Prompts {
  public:
    TurnUntilMessage(Prompts& prompts, Connection& connection) : prompts_(prompts), turn_(std::in_place, connection) {}
    Answer ask(const Message& message) override {
        turn_.reset();
        return prompts_.ask(message);
    }
    QStringList chooseFiles(const FileQuestion& question) override {
        turn_.reset();
        return prompts_.chooseFiles(question);
    }

  private:
    Prompts& prompts_;
    std::optional<Turn> turn_;
};

// One punch in the making.
struct Press {
    const Context& context;
    Connection& connection;
    const QString& staff;
    Moment when;

    [[nodiscard]] PunchResult run(Punch kind) const {
        if (!hasCalendar(context, connection, dayOf(when))) return PunchResult::Stopped;
        const bool onCard = kind == Punch::Enter || kind == Punch::Leave;
        const auto state =
            onCard ? TimeCardStatus(context, connection, staff, when) : GetKurboID(context, connection, staff, when);
        if (!state) return PunchResult::Stopped;
        if (kind == Punch::Enter) return enter(*state);
        return kind == Punch::Leave ? leave(*state) : outOrIn(*state, kind);
    }

    [[nodiscard]] PunchResult enter(const StatusCode& state) const {
        if (state.today == DayRow::Entered || state.today == DayRow::Left) return refuse(context, state);
        return ended(RecordEnter(context, connection, staff, when, state.today == DayRow::None, false));
    }

    [[nodiscard]] PunchResult leave(const StatusCode& state) const {
        if (state.today == DayRow::Left) return refuse(context, state);
        const QString day = state.today == DayRow::None ? QString() : dateId(dayOf(when));
        if (state.today == DayRow::Entered) return ended(leaveOn(day));
        if (goesOn(state)) return ended(leaveOn(state.open->dateId));
        if (!leaveOn(day)) return PunchResult::Stopped;
        warnOfMissing(state);
        return PunchResult::Done;
    }

    [[nodiscard]] PunchResult outOrIn(const StatusCode& state, Punch kind) const {
        if (state.today != DayRow::None) return ended(outing(kind, state.cardId));
        if (goesOn(state)) return ended(outing(kind, state.open->id));
        if (!RecordEnter(context, connection, staff, when, true, true)) return PunchResult::Stopped;
        const auto made = GetKurboID(context, connection, staff, when);
        if (!made || !outing(kind, made->cardId)) return PunchResult::Stopped;
        warnOfMissing(state);
        return PunchResult::Done;
    }

    [[nodiscard]] bool goesOn(const StatusCode& state) const {
        return state.open && continues(context, state.open->slashDate());
    }

    void warnOfMissing(const StatusCode& state) const {
        state.open ? warnNoLeave(context, state.open->slashDate()) : warnNoEnter(context);
    }

    [[nodiscard]] bool leaveOn(const QString& day) const { return RecordLeave(context, connection, staff, when, day); }

    [[nodiscard]] bool outing(Punch kind, std::int64_t cardId) const {
        return kind == Punch::Out ? RecordGoOut(context, connection, cardId, when)
                                  : RecordComeIn(context, connection, cardId, when);
    }
};

Moment punchTime(const Context& context, const Session& session, Punch kind) {
    const Moment now = context.clock.now();
    if (kind == Punch::Enter) return now - session.EnterDelay;
    if (kind == Punch::Leave) return now + session.LeaveGain;
    return now;
}

} // namespace

PunchResult punch(const Context& surroundings, Connection& connection, const Session& session, Punch kind) {
    if (!mayPunch(surroundings, session)) return PunchResult::Stopped;
    TurnUntilMessage prompts(surroundings.prompts, connection);
    const Context context{prompts, surroundings.clock, surroundings.paths, surroundings.progress};
    return Press{context, connection, session.SessionStaff, punchTime(context, session, kind)}.run(kind);
}

} // namespace kurbo
