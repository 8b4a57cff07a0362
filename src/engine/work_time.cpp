#include "engine/work_time.h"

#include "base/failure.h"

#include <algorithm>

namespace kurbo {
namespace {

[[noreturn]] void refuse(WorkTimeError number, const QString& text) {
    throw Fault(static_cast<std::int64_t>(number), QStringLiteral("clsWorkTime"), text);
}

[[noreturn]] void refuseTime(const char16_t* name) {
    refuse(WorkTimeError::NoTime, QString::fromUtf16(name) + QStringLiteral("に時間以外の値が設定されています。"));
}

void checkIndex(int index) {
    const QString text = QStringLiteral("インデックスが有効範囲にありません。");
    if (index >= BandList::capacity) refuse(WorkTimeError::Index, text);
    if (index < 0) refuse(WorkTimeError::Bounds, text);
}

Minutes minutes(Seconds seconds) {
    return std::chrono::duration_cast<Minutes>(seconds);
}

const BandProperty& known(const BandProperty* property) {
    if (!property) refuse(WorkTimeError::Bounds, QStringLiteral("インデックスが有効範囲にありません。"));
    return *property;
}

} // namespace

Moment RoundPunch(Moment time, int direction, Minutes unit) {
    const Seconds since = time - std::chrono::floor<std::chrono::hours>(time);
    const Seconds over = since % Seconds(unit);
    if (direction == 0) return time - over;
    return direction == 1 && over != Seconds{} ? time + (unit - over) : time;
}

void clsWorkTime::pstrStandardTime(QStringView text) {
    setStandard(DayType::Weekday, text, u"標準労働時間");
}

void clsWorkTime::pstrAmStandardTime(QStringView text) {
    setStandard(DayType::AmHoliday, text, u"午前休日時の標準労働時間");
}

void clsWorkTime::pstrPmStandardTime(QStringView text) {
    setStandard(DayType::PmHoliday, text, u"午後休日時の標準労働時間");
}

void clsWorkTime::setStandard(DayType day, QStringView text, const char16_t* failure) {
    const auto time = timeOfDay(text);
    if (!time) refuseTime(failure);
    standard_[index(day)] = minutes(*time);
}

void clsWorkTime::plngRoundUnit(Minutes unit) {
    if (unit == Minutes{}) refuse(WorkTimeError::NoUnit, QStringLiteral("端数処理単位が設定されていません。"));
    roundUnit_ = unit;
}

void clsWorkTime::plngCloseDay(int day) {
    if (!((day >= 1 && day <= 27) || day == 31))
        refuse(WorkTimeError::NoTime, QStringLiteral("タイムカード締日に不正な日付が設定されています。"));
    closeDay_ = day;
}

const BandList& clsWorkTime::bands(DayType day, BandKind kind) const {
    return bands_[index(day)][static_cast<std::size_t>(kind)];
}

void clsWorkTime::setBand(QStringView property, int bandIndex, QStringView text) {
    const BandProperty& band = known(bandPropertyNamed(property));
    if (property.startsWith(u"pstrStart"))
        setStart(band.day, band.kind, bandIndex, text);
    else
        setEnd(band.day, band.kind, bandIndex, text);
}

void clsWorkTime::setStart(DayType day, BandKind kind, int bandIndex, QStringView text) {
    const BandProperty& property = known(bandProperty(day, kind));
    checkIndex(bandIndex);
    const auto start = timeOfDay(text);
    if (!start) refuseTime(property.startName);
    bands_[index(day)][static_cast<std::size_t>(kind)].setStart(bandIndex, *start);
}

void clsWorkTime::setEnd(DayType day, BandKind kind, int bandIndex, QStringView text) {
    const BandProperty& property = known(bandProperty(day, kind));
    checkIndex(bandIndex);
    const auto end = timeOfDay(text);
    if (!end) refuseTime(property.endName);
    BandList& list = bands_[index(day)][static_cast<std::size_t>(kind)];
    if (*end != Seconds{} && *end <= list.at(bandIndex).start)
        refuse(WorkTimeError::Order, QString::fromUtf16(property.endName) + QString::fromUtf16(property.orderText));
    list.setEnd(bandIndex, *end == Seconds{} ? wholeDay : *end);
    keepBusiness(day, kind, *end);
}

// Business hours run from the first work or core band's start to the end that was set last.
void clsWorkTime::keepBusiness(DayType day, BandKind kind, Seconds end) {
    if (day == DayType::Holiday || (kind != BandKind::Work && kind != BandKind::Core)) return;
    business_[index(day)] = {bands(day, kind).at(0).start, end};
}

Moment clsWorkTime::rounded(Moment time, int direction) const {
    return plngRoundMethod == 0 ? RoundPunch(time, direction, roundUnit_) : time;
}

void clsWorkTime::pdtmEnter(std::optional<Moment> enter) {
    if (!enter) refuseTime(u"出社時刻");
    rawEnter_ = *enter;
    const Moment rawDay = dayOf(rawEnter_);
    rawEnterOfDay_ = rawEnter_ - rawDay;
    const Moment working = rounded(rawEnter_, plngRoundEnter);
    enterDay_ = plngRoundMethod == 0 ? Moment{dayOf(working)} : rawDay;
    enter_ = working - enterDay_;
    placeLeave();
}

void clsWorkTime::pdtmLeave(std::optional<Moment> leave) {
    if (!leave) refuseTime(u"退社時刻");
    rawLeave_ = *leave;
    if (rawLeave_ < rawEnter_)
        refuse(WorkTimeError::Order, QStringLiteral("退社時刻が出社時刻より前に設定されています。"));
    workingLeave_ = rounded(rawLeave_, plngRoundLeave);
    placeLeave();
}

void clsWorkTime::placeLeave() {
    leave_ = workingLeave_ - enterDay_;
    lastDay_ = leave_ < wholeDay ? Seconds{} : leave_ - leave_ % wholeDay;
    rawLeaveOfDay_ = rawLeave_ - rawEnter_ + rawEnterOfDay_;
}

void clsWorkTime::plngNextDayType(int type) {
    nextDayType_ = type;
    if (type >= 0 && type <= 3) border_ = borderOf(static_cast<DayType>(type));
}

Seconds clsWorkTime::borderOf(DayType day) const {
    const bool flexible = (day == DayType::Weekday && pbleFlexTime) || (day == DayType::AmHoliday && pbleAmFlexTime) ||
                          (day == DayType::PmHoliday && pblePmFlexTime);
    return bands(day, flexible ? BandKind::Flex : BandKind::Work).at(0).start;
}

// The stay's overlap with the bands placed on the day that begins at `dayStart`.
Seconds clsWorkTime::overlap(Seconds dayStart, const BandList& list) const {
    return list.overlap(enter_ - dayStart, leave_ - dayStart);
}

// Every date from the enter's to the leave's, and at least the first; with `shift`, from so much later on.
Seconds clsWorkTime::walked(const BandList& list, Seconds shift) const {
    const Seconds first = overlap(shift, list);
    return lastDay_ == Seconds{} ? first : first + walkedBeyondFirst(list, shift);
}

Seconds clsWorkTime::walkedBeyondFirst(const BandList& list, Seconds shift) const {
    Seconds total{};
    for (Seconds day = wholeDay; day <= lastDay_; day += wholeDay) total += overlap(day + shift, list);
    return total;
}

Minutes clsWorkTime::workTime(DayType day, bool flexible) const {
    if (!flexible) return minutes(walked(bands(day, BandKind::Work)));
    return minutes(walked(bands(day, BandKind::Core)) + walked(bands(day, BandKind::Flex)));
}

Minutes clsWorkTime::WorkTime() const {
    return workTime(DayType::Weekday, pbleFlexTime);
}
// The weekday's switch decides here, not that of the AM holiday.
Minutes clsWorkTime::AmWorkTime() const {
    return workTime(DayType::AmHoliday, pbleFlexTime);
}
Minutes clsWorkTime::PmWorkTime() const {
    return workTime(DayType::PmHoliday, pblePmFlexTime);
}

// The after-late bands of the next day's kind lie on the morning after each date of the stay.
Minutes clsWorkTime::overWork(DayType day, DayType afterAmHoliday) const {
    Seconds total = walked(bands(day, BandKind::Over));
    if (nextDayType_ >= 0 && nextDayType_ <= 3) {
        const auto next = nextDayType_ == 2 ? afterAmHoliday : static_cast<DayType>(nextDayType_);
        total += walked(bands(next, BandKind::AfterLate), wholeDay);
    }
    return minutes(total);
}

Minutes clsWorkTime::LegalOverWork() const {
    return minutes(walked(bands(DayType::Weekday, BandKind::LegalOver)));
}
Minutes clsWorkTime::OverWork() const {
    return overWork(DayType::Weekday, DayType::AmHoliday);
}
Minutes clsWorkTime::LateWork() const {
    return minutes(walked(bands(DayType::Weekday, BandKind::Late)));
}
// Early work lies on the date of the enter only; on half holidays it is walked over all dates.
Minutes clsWorkTime::EarlyWork() const {
    return minutes(overlap({}, bands(DayType::Weekday, BandKind::Early)));
}

Minutes clsWorkTime::AmLegalOverWork() const {
    return minutes(walked(bands(DayType::AmHoliday, BandKind::LegalOver)));
}
Minutes clsWorkTime::AmOverWork() const {
    return overWork(DayType::AmHoliday, DayType::AmHoliday);
}
Minutes clsWorkTime::AmLateWork() const {
    return minutes(walked(bands(DayType::AmHoliday, BandKind::Late)));
}
Minutes clsWorkTime::AmEarlyWork() const {
    return minutes(walked(bands(DayType::AmHoliday, BandKind::Early)));
}

Minutes clsWorkTime::PmLegalOverWork() const {
    return minutes(walked(bands(DayType::PmHoliday, BandKind::LegalOver)));
}
// Before an AM holiday the PM holiday's own after-late band counts.
Minutes clsWorkTime::PmOverWork() const {
    return overWork(DayType::PmHoliday, DayType::PmHoliday);
}
Minutes clsWorkTime::PmLateWork() const {
    return minutes(walked(bands(DayType::PmHoliday, BandKind::Late)));
}
Minutes clsWorkTime::PmEarlyWork() const {
    return minutes(walked(bands(DayType::PmHoliday, BandKind::Early)));
}

Minutes clsWorkTime::absentHour(DayType day, bool flexible) const {
    const BandList& list = bands(day, flexible ? BandKind::Core : BandKind::Work);
    return minutes(list.length() - overlap({}, list));
}

Minutes clsWorkTime::AbsentHour() const {
    return absentHour(DayType::Weekday, pbleFlexTime);
}
Minutes clsWorkTime::AmAbsentHour() const {
    return absentHour(DayType::AmHoliday, pbleAmFlexTime);
}
Minutes clsWorkTime::PmAbsentHour() const {
    return absentHour(DayType::PmHoliday, pblePmFlexTime);
}

// Both counters look at the raw times, on the date of the raw enter.
Count clsWorkTime::lateEnter(DayType day) const {
    const Seconds start = startBusiness(day);
    return Count(start != noTimeOfDay && rawEnterOfDay_ > start ? 1 : 0);
}

Count clsWorkTime::earlyLeave(DayType day) const {
    const Seconds end = endBusiness(day);
    return Count(end != noTimeOfDay && rawLeaveOfDay_ < end ? 1 : 0);
}

Count clsWorkTime::LateEnter() const {
    return lateEnter(DayType::Weekday);
}
Count clsWorkTime::AmLateEnter() const {
    return lateEnter(DayType::AmHoliday);
}
Count clsWorkTime::PmLateEnter() const {
    return lateEnter(DayType::PmHoliday);
}
Count clsWorkTime::EarlyLeave() const {
    return earlyLeave(DayType::Weekday);
}
Count clsWorkTime::AmEarlyLeave() const {
    return earlyLeave(DayType::AmHoliday);
}
Count clsWorkTime::PmEarlyLeave() const {
    return earlyLeave(DayType::PmHoliday);
}

// Early work on a holiday is holiday work.
Minutes clsWorkTime::HolidayWork() const {
    return minutes(walked(bands(DayType::Holiday, BandKind::Work)) + walked(bands(DayType::Holiday, BandKind::Early)));
}
Minutes clsWorkTime::HolidayLateWork() const {
    return minutes(walked(bands(DayType::Holiday, BandKind::Late)));
}

} // namespace kurbo
