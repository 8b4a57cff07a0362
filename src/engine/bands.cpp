#include "engine/bands.h"

namespace kurbo {
namespace {

constexpr const char16_t* beforeStart = u"が開始時刻より前に設定されています。";
constexpr auto W = DayType::Weekday;
constexpr auto H = DayType::Holiday;
constexpr auto A = DayType::AmHoliday;
constexpr auto P = DayType::PmHoliday;

constexpr std::array properties{
    BandProperty{u"Work", W, BandKind::Work, u"勤務開始時刻", u"勤務終了時刻", beforeStart},
    BandProperty{u"Core", W, BandKind::Core, u"コアタイム開始時刻", u"コアタイム終了時刻", beforeStart},
    BandProperty{u"Flex", W, BandKind::Flex, u"フレキシブルタイム開始時刻", u"フレキシブルタイム終了時刻", beforeStart},
    BandProperty{u"LegalOver", W, BandKind::LegalOver, u"法定内残業開始時刻", u"法定内残業終了時刻", beforeStart},
    BandProperty{u"Over", W, BandKind::Over, u"残業開始時刻", u"残業終了時刻", beforeStart},
    BandProperty{u"Late", W, BandKind::Late, u"深夜残業開始時刻", u"深夜残業終了時刻", beforeStart},
    BandProperty{u"AfterLate", W, BandKind::AfterLate, u"明け残業開始時刻", u"明け残業終了時刻", beforeStart},
    BandProperty{u"Early", W, BandKind::Early, u"早出開始時刻", u"早出終了時刻", beforeStart},
    BandProperty{u"HolidayWork", H, BandKind::Work, u"休日開始時刻", u"休日終了時刻", beforeStart},
    BandProperty{u"HolidayLate", H, BandKind::Late, u"休日深夜残業開始時刻", u"休日深夜残業終了時刻", beforeStart},
    BandProperty{u"HolidayAfterLate", H, BandKind::AfterLate, u"休日明け残業開始時刻", u"休日明け残業終了時刻",
                 beforeStart},
    BandProperty{u"HolidayEarly", H, BandKind::Early, u"休日早出開始時刻", u"休日早出終了時刻",
                 u"が休日早出開始時刻より前に設定されています。"},
    BandProperty{u"AmHolidayWork", A, BandKind::Work, u"午前休日始業時刻", u"午前休日終業時刻", beforeStart},
    BandProperty{u"AmHolidayCore", A, BandKind::Core, u"午前休日コアタイム開始時刻", u"午前休日コアタイム終了時刻",
                 beforeStart},
    BandProperty{u"AmHolidayFlex", A, BandKind::Flex, u"午前休日フレキシブルタイム開始時刻",
                 u"午前休日フレキシブルタイム終了時刻", beforeStart},
    BandProperty{u"AmHolidayLegalOver", A, BandKind::LegalOver, u"午前休日法定内残業開始時刻",
                 u"午前休日法定内残業終了時刻", beforeStart},
    BandProperty{u"AmHolidayOver", A, BandKind::Over, u"午前休日残業開始時刻", u"午前休日残業終了時刻", beforeStart},
    BandProperty{u"AmHolidayLate", A, BandKind::Late, u"午前休日深夜残業開始時刻", u"午前休日深夜残業終了時刻",
                 beforeStart},
    BandProperty{u"AmAfterLate", A, BandKind::AfterLate, u"午前休日明け残業開始時刻", u"午前休日明け残業終了時刻",
                 beforeStart},
    BandProperty{u"AmHolidayEarly", A, BandKind::Early, u"午前休日早出開始時刻", u"午前休日早出終了時刻", beforeStart},
    BandProperty{u"PmHolidayWork", P, BandKind::Work, u"午後休日始業時刻", u"午後休日終業時刻", beforeStart},
    BandProperty{u"PmHolidayCore", P, BandKind::Core, u"午後休日コアタイム開始時刻", u"午後休日コアタイム終了時刻",
                 beforeStart},
    BandProperty{u"PmHolidayFlex", P, BandKind::Flex, u"午後休日フレキシブルタイム開始時刻",
                 u"午後休日フレキシブルタイム終了時刻", beforeStart},
    BandProperty{u"PmHolidayLegalOver", P, BandKind::LegalOver, u"午後休日法定内残業開始時刻",
                 u"午後休日法定内残業終了時刻", beforeStart},
    BandProperty{u"PmHolidayOver", P, BandKind::Over, u"午後休日残業開始時刻", u"午後休日残業終了時刻", beforeStart},
    BandProperty{u"PmHolidayLate", P, BandKind::Late, u"午後休日深夜残業開始時刻", u"午後休日深夜残業終了時刻",
                 beforeStart},
    BandProperty{u"PmHolidayAfterLate", P, BandKind::AfterLate, u"午後休日明け残業開始時刻",
                 u"午後休日明け残業終了時刻", beforeStart},
    BandProperty{u"PmHolidayEarly", P, BandKind::Early, u"午後休日早出開始時刻", u"午後休日早出終了時刻", beforeStart},
};

int digit(QChar c) {
    return c >= u'0' && c <= u'9' ? c.unicode() - u'0' : -1;
}

} // namespace

std::optional<Seconds> timeOfDay(QStringView text) {
    if (text.size() != 5 || text[2] != u':') return {};
    for (const qsizetype i : {0, 1, 3, 4})
        if (digit(text[i]) < 0) return {};
    const int hour = digit(text[0]) * 10 + digit(text[1]);
    const int minute = digit(text[3]) * 10 + digit(text[4]);
    if (hour > 23 || minute > 59) return {};
    return Minutes(hour * 60 + minute);
}

void BandList::set(int index, Seconds start, Seconds end) {
    bands_[static_cast<std::size_t>(index)] = {start, end};
    starts_ = {};
    ends_ = {};
    length_ = {};
    for (std::size_t i = 0; i < bands_.size() && !bands_[i].isEmpty(); ++i) {
        starts_[i] = bands_[i].start.count();
        ends_[i] = bands_[i].end.count();
        length_ += bands_[i].end - bands_[i].start;
    }
}

const BandProperty* bandProperty(DayType day, BandKind kind) {
    for (const BandProperty& property : properties)
        if (property.day == day && property.kind == kind) return &property;
    return nullptr;
}

const BandProperty* bandPropertyNamed(QStringView name) {
    for (const BandProperty& property : properties)
        for (const QStringView prefix : {u"pstrStart", u"pstrEnd"})
            if (name.startsWith(prefix) && name.mid(prefix.size()) == QStringView(property.suffix)) return &property;
    return nullptr;
}

} // namespace kurbo
