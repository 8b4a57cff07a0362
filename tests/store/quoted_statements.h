#pragma once

// Every statement the system issues, as it stands, with example values in the places.

namespace kurbo::test {

struct QuotedStatement {
    const char16_t* use;
    const char16_t* text;
};

inline constexpr QuotedStatement quotedStatements[] = {
    // Main window and login
    {u"login: sections of this file; also the test for a usable file",
     u"SELECT F_SectionCode, F_SectionName FROM C02_Section WHERE (F_DB = 'カレントデータベース') AND (F_Display = "
     u"True) ORDER BY F_Order;"},
    {u"login: people of a section",
     u"SELECT C03_Staff.F_StaffCode, C03_Staff.F_StaffName FROM C03_Staff INNER JOIN M02_StaffInfo ON "
     u"C03_Staff.F_StaffCode = M02_StaffInfo.F_StaffCode Where (C03_Staff.F_Section = 'S01') AND "
     u"(C03_Staff.F_Display = True) ORDER BY C03_Staff.F_Order;"},
    {u"RecordedDays: days that have card rows", u"SELECT DISTINCT F_DateID FROM T02_Kurbo ORDER BY F_DateID;"},
    {u"IsPasswordOK: password of a person",
     u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_StaffCode = '1001') AND (F_PassWord = 'kurbo1');"},
    {u"GetTimeDiff: punch adjustments of a person",
     u"SELECT F_EnterDelay, F_LeaveGain FROM M02_StaffInfo WHERE (F_StaffCode = '1001');"},
    {u"GetFirstDate: first day of the calendar", u"SELECT F_Date FROM T01_Calendar ORDER BY F_Date;"},
    {u"GetFirstMonth: first saved month", u"SELECT F_Year, F_Month FROM T05_Approved ORDER BY F_Year, F_Month;"},

    // Set-up tests
    {u"IsCorpOK: company record", u"SELECT F_Corp FROM C01_Corp;"},
    {u"IsSectionOK: a section besides the reserved one",
     u"SELECT F_SectionCode FROM C02_Section WHERE (F_SectionName <> '新しい部課');"},
    {u"IsStaffOK: a person besides the reserved ones",
     u"SELECT F_StaffCode FROM C03_Staff WHERE (F_StaffName <> '新しい社員') AND (F_StaffName <> 'ADMIN');"},
    {u"IsWorkStyleOK: company work style", u"SELECT F_WorkStyle FROM M01_CorpInfo;"},
    {u"IsWorkTimeOK: a weekday style besides the reserved one",
     u"SELECT F_WeekdayCode FROM M03_WeekdayStyle WHERE (F_WeekdayName <> '新しい勤務時間');"},
    {u"IsAdjustOK: adjust limits besides the reserved ones",
     u"SELECT F_AdjustCode FROM M07_AdjustHours WHERE (F_AdjustName <> '新しい時間調整');"},
    {u"IsAccessOK: an access right besides the reserved one",
     u"SELECT F_AccessCode FROM M08_Access WHERE (F_AccessName <> '新しいアクセス権');"},

    // Next codes and positions
    {u"GenerateKurboID: next card id; also the first id for renumbering",
     u"SELECT F_KurboID FROM T02_Kurbo ORDER BY F_KurboID;"},
    {u"go-out update: next destination code", u"SELECT F_DestCode FROM T04_Destination ORDER BY F_DestCode;"},
    {u"work-time settings: next code, weekday", u"SELECT F_WeekdayCode FROM M03_WeekdayStyle ORDER BY F_WeekdayCode;"},
    {u"work-time settings: next code, holiday", u"SELECT F_HolidayCode FROM M04_HolidayStyle ORDER BY F_HolidayCode;"},
    {u"work-time settings: next code, morning holiday",
     u"SELECT F_AmHolidayCode FROM M05_AmHolidayStyle ORDER BY F_AmHolidayCode;"},
    {u"work-time settings: next code, afternoon holiday",
     u"SELECT F_PmHolidayCode FROM M06_PmHolidayStyle ORDER BY F_PmHolidayCode;"},
    {u"work-time settings: next code, adjust limits",
     u"SELECT F_AdjustCode FROM M07_AdjustHours ORDER BY F_AdjustCode;"},
    {u"UpdateAccess: next access-right code", u"SELECT F_AccessCode FROM M08_Access ORDER BY F_AccessCode;"},
    {u"GetNextSectionOrder: last position of the sections", u"SELECT F_Order FROM C02_Section ORDER BY F_Order;"},
    {u"GetNextStaffOrder: last position of the people", u"SELECT F_Order FROM C03_Staff ORDER BY F_Order;"},

    // Shared readers and rights
    {u"GetDbPath: where a section's data are", u"SELECT F_DB FROM C02_Section WHERE (F_SectionCode = 'S01');"},
    {u"WhichHoliday: names of the days", u"SELECT F_Date, F_Holiday FROM T01_Calendar;"},
    {u"ExistCalendar: calendar rows of a range",
     u"SELECT F_Date FROM T01_CALENDAR WHERE (F_Date BETWEEN #2026/04/01# And #2026/04/30#);"},
    {u"EndAllNight: leave punches before a day; also the stay carried into a card",
     u"SELECT T02_Kurbo.F_Leave FROM T01_Calendar INNER JOIN T02_Kurbo ON T01_Calendar.F_DateID = "
     u"T02_Kurbo.F_DateID WHERE (T02_Kurbo.F_User = '1001') AND (T01_Calendar.F_Date < #2026/04/01#) ORDER BY "
     u"T01_Calendar.F_Date;"},
    {u"GetAccess: rights for the person's own section",
     u"SELECT * FROM M08_Access INNER JOIN M02_StaffInfo ON M08_Access.F_AccessCode = M02_StaffInfo.F_Access WHERE "
     u"(M08_Access.F_Section = 'MySection') AND (M02_StaffInfo.F_StaffCode = '1001');"},
    {u"GetAccess: rights for another section",
     u"SELECT * FROM M08_Access INNER JOIN M02_StaffInfo ON M08_Access.F_AccessCode = M02_StaffInfo.F_Access WHERE "
     u"(M08_Access.F_Section = 'S01') AND (M02_StaffInfo.F_StaffCode = '1001');"},

    // Punches
    {u"TimeCardStatus, GetKurboID, RecordEnter, RecordLeave: card rows up to a day",
     u"SELECT * FROM T02_Kurbo WHERE (F_User = '1001') AND (F_DateID <= '20260401') ORDER BY F_DateID;"},
    {u"RecordGoOut, RecordComeIn, ShowGoOut: outings of a card row",
     u"SELECT * FROM T03_GoOut WHERE (F_KurboID = 1) ORDER BY F_Order;"},

    // Work rules
    {u"GetWorkStyle and the work style screen: company work style",
     u"SELECT F_WorkStyle, F_FlexStandard, F_AmHolidayWork, F_AmFlex, F_AmFlexStandard, F_PmHolidayWork, F_PmFlex, "
     u"F_PmFlexStandard, F_RoundMethod, F_RoundEnter, F_RoundLeave, F_RoundHour, F_RoundUnit, F_CountUnit, F_Diff, "
     u"F_LegalOver, F_Over, F_Late, F_Early, F_Holiday, F_HolidayLate, F_LegalHoliday, F_LegalLate, F_Absent, "
     u"F_Paid, F_Special, F_Compens, F_AbsentDay, F_LateEnter, F_EarlyLeave FROM M01_CorpInfo;"},
    {u"GetStaffInfo: settings of a person",
     u"SELECT F_EnterDelay, F_LeaveGain, F_CloseDay, F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001');"},
    {u"GetWorkTime: bands of a weekday",
     u"SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartWork2, F_EndWork2, F_StartFlex0, "
     u"F_EndFlex0, F_StartFlex1, F_EndFlex1, F_StartFlex2, F_EndFlex2, F_StartFlex3, F_EndFlex3, "
     u"F_StartLegalOver0, F_EndLegalOver0, F_StartOver0, F_EndOver0, F_StartOver1, F_EndOver1, F_StartOver2, "
     u"F_EndOver2, F_StartLate0, F_EndLate0, F_StartLate1, F_EndLate1, F_StartLate2, F_EndLate2, "
     u"F_StartAfterLate0, F_EndAfterLate0, F_StartEarly0, F_EndEarly0 FROM M02_StaffInfo INNER JOIN "
     u"M03_WeekdayStyle ON M02_StaffInfo.F_Weekday = M03_WeekdayStyle.F_WeekdayCode WHERE "
     u"(M02_StaffInfo.F_StaffCode = '1001');"},
    {u"GetWorkTime: bands of a holiday",
     u"SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartWork2, F_EndWork2, F_StartLate0, "
     u"F_EndLate0, F_StartLate1, F_EndLate1, F_StartLate2, F_EndLate2, F_StartAfterLate0, F_EndAfterLate0, "
     u"F_StartEarly0, F_EndEarly0 FROM M02_StaffInfo INNER JOIN M04_HolidayStyle ON M02_StaffInfo.F_Holiday = "
     u"M04_HolidayStyle.F_HolidayCode WHERE (M02_StaffInfo.F_StaffCode = '1001');"},
    {u"GetWorkTime: bands of a morning holiday",
     u"SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartFlex0, F_EndFlex0, F_StartFlex1, "
     u"F_EndFlex1, F_StartLegalOver0, F_EndLegalOver0, F_StartOver0, F_EndOver0, F_StartOver1, F_EndOver1, "
     u"F_StartOver2, F_EndOver2, F_StartLate0, F_EndLate0, F_StartLate1, F_EndLate1, F_StartLate2, F_EndLate2, "
     u"F_StartAfterLate0, F_EndAfterLate0, F_StartEarly0, F_EndEarly0, F_StartEarly1, F_EndEarly1 FROM "
     u"M02_StaffInfo INNER JOIN M05_AmHolidayStyle ON M02_StaffInfo.F_AmHoliday = "
     u"M05_AmHolidayStyle.F_AmHolidayCode WHERE (M02_StaffInfo.F_StaffCode = '1001');"},
    {u"GetWorkTime: bands of an afternoon holiday",
     u"SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartFlex0, F_EndFlex0, F_StartFlex1, "
     u"F_EndFlex1, F_StartLegalOver0, F_EndLegalOver0, F_StartOver0, F_EndOver0, F_StartOver1, F_EndOver1, "
     u"F_StartOver2, F_EndOver2, F_StartOver3, F_EndOver3, F_StartLate0, F_EndLate0, F_StartLate1, F_EndLate1, "
     u"F_StartLate2, F_EndLate2, F_StartAfterLate0, F_EndAfterLate0, F_StartEarly0, F_EndEarly0 FROM M02_StaffInfo "
     u"INNER JOIN M06_PmHolidayStyle ON M02_StaffInfo.F_PmHoliday = M06_PmHolidayStyle.F_PmHolidayCode WHERE "
     u"(M02_StaffInfo.F_StaffCode = '1001');"},

    // Card
    {u"ShowKurbo: days of a card and the day after",
     u"SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T01_Calendar.F_Dummy AS F_Plan, T01_Calendar.F_Dummy AS "
     u"F_Enter, T01_Calendar.F_Dummy AS F_Leave, T01_Calendar.F_Dummy AS F_Paid, T01_Calendar.F_Dummy AS "
     u"F_Special, T01_Calendar.F_Dummy AS F_Compens, T01_Calendar.F_Dummy AS F_KurboID FROM T01_Calendar LEFT JOIN "
     u"T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date BETWEEN #2026/04/01# And "
     u"#2026/05/01#) AND (T01_Calendar.F_DateID NOT IN (SELECT F_DateID FROM T02_Kurbo WHERE (F_User = '1001'))) "
     u"UNION SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T02_Kurbo.F_Plan, T02_Kurbo.F_Enter, "
     u"T02_Kurbo.F_Leave, T02_Kurbo.F_Paid, T02_Kurbo.F_Special, T02_Kurbo.F_Compens, T02_Kurbo.F_KurboID FROM "
     u"T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date "
     u"BETWEEN #2026/04/01# And #2026/05/01#) AND (T02_Kurbo.F_User = '1001');"},
    {u"card: saved month of a person",
     u"SELECT F_WorkDay, F_Work, F_PaidTotal, F_LegalOver, F_Over, F_Late, F_Early, F_Holiday, F_HolidayLate, "
     u"F_LegalHoliday, F_LegalLate, F_Absent, F_Paid, F_Special, F_Compens, F_AbsentDay, F_LateEnter, "
     u"F_EarlyLeave, F_PersonalApproval, F_SuperiorApproval FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year "
     u"= '2026') AND (F_Month = '04');"},
    {u"AdjustMonthly: upper limits of a person",
     u"SELECT M07_AdjustHours.F_LegalOver, M07_AdjustHours.F_Over, M07_AdjustHours.F_Late, "
     u"M07_AdjustHours.F_Early, M07_AdjustHours.F_Holiday, M07_AdjustHours.F_HolidayLate, "
     u"M07_AdjustHours.F_LegalHoliday, M07_AdjustHours.F_LegalLate FROM M02_StaffInfo INNER JOIN M07_AdjustHours "
     u"ON M02_StaffInfo.F_AdjustHours = M07_AdjustHours.F_AdjustCode WHERE (M02_StaffInfo.F_StaffCode = '1001');"},
    {u"card, totals, staff settings, staff records, access rights: sections in view",
     u"SELECT F_SectionCode, F_SectionName FROM C02_Section WHERE (F_Display = True) ORDER BY F_Order;"},
    {u"card and totals: people of a section",
     u"SELECT F_StaffCode, F_StaffName FROM C03_Staff WHERE (F_Section = 'S01') AND (F_Display = True)ORDER BY "
     u"F_Order;"},
    {u"UpdateDayly: card rows of a person", u"SELECT * FROM T02_Kurbo WHERE (F_User = '1001') ORDER BY F_KurboID;"},
    {u"DeleteKurbo: card rows of a period",
     u"DELETE * FROM T02_Kurbo WHERE (CLNG(F_DateID) BETWEEN 20260401 AND 20260430) AND (F_User = '1001');"},
    {u"UpdateMonthly: saved months of a person",
     u"SELECT *, F_Year & F_Month AS F_YearMonth FROM T05_Approved WHERE (F_Staff = '1001');"},
    {u"UpdateMonthly: paid-leave balance of a person",
     u"SELECT F_PaidTotal From M02_StaffInfo WHERE (F_StaffCode = '1001');"},
    {u"UpdatePersonal: the person's approval of a month",
     u"SELECT F_PersonalApproval FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year = '2026') AND (F_Month = "
     u"'04');"},
    {u"UpdateSuperior: the superior's approval of a month",
     u"SELECT F_SuperiorApproval FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year = '2026') AND (F_Month = "
     u"'04');"},

    // Outings and destinations
    {u"ShowGoOut: destinations of a person, most visited first",
     u"SELECT T04_Destination.F_DestCode, T04_Destination.F_DestName FROM T04_Destination INNER JOIN T03_GoOut ON "
     u"T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T04_Destination.F_User = '1001') GROUP BY "
     u"T04_Destination.F_DestCode, T04_Destination.F_DestName ORDER BY Count(T03_GoOut.F_KurboID) DESC, "
     u"T04_Destination.F_DestName;"},
    {u"go-out detail: expenses to a place",
     u"SELECT T03_GoOut.F_Expense FROM T04_Destination INNER JOIN T03_GoOut ON T04_Destination.F_DestCode = "
     u"T03_GoOut.F_Destination WHERE (T04_Destination.F_User = '1001') AND (T04_Destination.F_DestName = '本社') "
     u"ORDER BY T03_GoOut.F_KurboID;"},
    {u"UpdateGoOut: outings of a card row taken away", u"DELETE * FROM T03_GoOut WHERE (F_KurboID = 1);"},
    {u"UpdateGoOut: destinations of a person", u"SELECT * FROM T04_Destination WHERE (F_User = '1001');"},
    {u"UpdateGoOut: outings to add to", u"SELECT * FROM T03_GoOut ORDER BY F_Order;"},
    {u"rptGoOut: outings of a period",
     u"SELECT CDate(Left(T02_Kurbo.F_DateID, 4) & '/' & Mid(T02_Kurbo.F_DateID,5, 2) & '/' & "
     u"Right(T02_Kurbo.F_DateID, 2)) AS F_Date, T03_GoOut.F_Out, T03_GoOut.F_In, T04_Destination.F_DestName, "
     u"T03_GoOut.F_Expense FROM T04_Destination INNER JOIN (T02_Kurbo INNER JOIN T03_GoOut ON T02_Kurbo.F_KurboID "
     u"= T03_GoOut.F_KurboID) ON T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T02_Kurbo.F_DateID "
     u"BETWEEN '20260401' AND '20260430') AND (T02_Kurbo.F_User = '1001') ORDER BY T02_Kurbo.F_DateID, "
     u"T03_GoOut.F_Order;"},
    {u"frmDeleteDest: unused destinations of a person",
     u"SELECT T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName FROM T04_Destination "
     u"LEFT JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T03_GoOut.F_Destination "
     u"Is Null) AND (T04_Destination.F_User = '1001') ORDER BY T04_Destination.F_DestCode;"},
    {u"frmDeleteDest: unused destinations of everybody",
     u"SELECT T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName FROM (T04_Destination "
     u"LEFT JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination) INNER JOIN C03_Staff ON "
     u"T04_Destination.F_User = C03_Staff.F_StaffCode WHERE T03_GoOut.F_Destination Is Null GROUP BY "
     u"T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName, C03_Staff.F_Order ORDER BY "
     u"C03_Staff.F_Order, T04_Destination.F_DestCode;"},
    {u"DeleteDestination: one destination", u"DELETE * FROM T04_Destination WHERE F_DestCode = 1"},

    // Monthly totals
    {u"ShowTotal: one person",
     u"SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_StaffCode = '1001') ;"},
    {u"ShowTotal: people of a section",
     u"SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_Section = 'S01') AND (F_Display = True) "
     u"ORDER BY F_Order;"},
    {u"ShowTotal: saved months of one person",
     u"SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') "
     u"AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, "
     u"T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, "
     u"T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, "
     u"T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, "
     u"T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, "
     u"T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, "
     u"Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, "
     u"T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode "
     u"WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN '202601' AND '202604') AND (T05_Approved.F_Staff "
     u"= '1001') ORDER BY T05_Approved.F_Year & T05_Approved.F_Month;"},
    {u"ShowTotal: saved months of a section by staff",
     u"SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') "
     u"AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, "
     u"T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, "
     u"T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, "
     u"T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, "
     u"T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, "
     u"T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, "
     u"Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, "
     u"T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode "
     u"WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN '202601' AND '202604') AND "
     u"(T05_Approved.F_Section = 'S01') AND (C03_Staff.F_Display = True) ORDER BY C03_Staff.F_Order, "
     u"T05_Approved.F_Year & T05_Approved.F_Month;"},
    {u"ShowTotal: saved months of a section by month",
     u"SELECT Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, "
     u"C03_Staff.F_StaffName, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, "
     u"T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, "
     u"T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, "
     u"T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, "
     u"T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, "
     u"T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, T05_Approved.F_Year "
     u"& T05_Approved.F_Month & Format(C03_Staff.F_Order,'0000') AS F_Order, T05_Approved.F_Staff FROM "
     u"T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE "
     u"(T05_Approved.F_Year & T05_Approved.F_Month BETWEEN '202601' AND '202604') AND (T05_Approved.F_Section = "
     u"'S01') AND (C03_Staff.F_Display = True) ORDER BY T05_Approved.F_Year & T05_Approved.F_Month, "
     u"C03_Staff.F_Order;"},

    // Monthly totals with the months as bare numbers
    {u"ShowTotal: saved months of one person, months as numbers",
     u"SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') "
     u"AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, "
     u"T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, "
     u"T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, "
     u"T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, "
     u"T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, "
     u"T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, "
     u"Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, "
     u"T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode "
     u"WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN 202601 AND 202604) AND (T05_Approved.F_Staff = "
     u"'1001') ORDER BY T05_Approved.F_Year & T05_Approved.F_Month;"},
    {u"ShowTotal: saved months of a section by staff, months as numbers",
     u"SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') "
     u"AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, "
     u"T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, "
     u"T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, "
     u"T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, "
     u"T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, "
     u"T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, "
     u"Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, "
     u"T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode "
     u"WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN 202601 AND 202604) AND (T05_Approved.F_Section = "
     u"'S01') AND (C03_Staff.F_Display = True) ORDER BY C03_Staff.F_Order, T05_Approved.F_Year & "
     u"T05_Approved.F_Month;"},
    {u"ShowTotal: saved months of a section by month, months as numbers",
     u"SELECT Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, "
     u"C03_Staff.F_StaffName, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, "
     u"T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, "
     u"T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, "
     u"T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, "
     u"T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, "
     u"T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, T05_Approved.F_Year "
     u"& T05_Approved.F_Month & Format(C03_Staff.F_Order,'0000') AS F_Order, T05_Approved.F_Staff FROM "
     u"T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE "
     u"(T05_Approved.F_Year & T05_Approved.F_Month BETWEEN 202601 AND 202604) AND (T05_Approved.F_Section = 'S01') "
     u"AND (C03_Staff.F_Display = True) ORDER BY T05_Approved.F_Year & T05_Approved.F_Month, C03_Staff.F_Order;"},

    // Monthly totals, other statements
    {u"ShowTotal: days of a person for a month without a record",
     u"SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T01_Calendar.F_Dummy AS F_Enter, T01_Calendar.F_Dummy AS "
     u"F_Leave, T01_Calendar.F_Dummy AS F_Paid, T01_Calendar.F_Dummy AS F_Special, T01_Calendar.F_Dummy AS "
     u"F_Compens, T01_Calendar.F_Dummy AS F_KurboID FROM T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID "
     u"= T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date BETWEEN #2026/04/01# And #2026/05/01#) AND "
     u"(T01_Calendar.F_DateID NOT IN (SELECT F_DateID FROM T02_Kurbo WHERE (F_User = '1001'))) UNION SELECT "
     u"T01_Calendar.F_Date, T01_Calendar.F_Type, T02_Kurbo.F_Enter, T02_Kurbo.F_Leave, T02_Kurbo.F_Paid, "
     u"T02_Kurbo.F_Special, T02_Kurbo.F_Compens, T02_Kurbo.F_KurboID FROM T01_Calendar LEFT JOIN T02_Kurbo ON "
     u"T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date BETWEEN #2026/04/01# And "
     u"#2026/05/01#) AND (T02_Kurbo.F_User = '1001');"},
    {u"UpdateTotal and CSV import: saved months of everybody",
     u"SELECT *, F_Year & F_Month AS F_YearMonth From T05_Approved;"},
    {u"UpdateTotal and CSV import: paid-leave balances", u"SELECT F_StaffCode, F_PaidTotal FROM M02_StaffInfo;"},
    {u"CountTotal: saved months of a person",
     u"SELECT F_Staff FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year & F_Month BETWEEN '202601' AND "
     u"'202604');"},
    {u"CountTotal: saved months of a section",
     u"SELECT F_Staff FROM T05_Approved WHERE (F_Section = 'S01') AND (F_Year & F_Month BETWEEN '202601' AND "
     u"'202604');"},
    {u"DeleteTotal: saved months of a person",
     u"DELETE * FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year & F_Month BETWEEN '202601' AND '202604');"},
    {u"DeleteTotal: saved months of a section",
     u"DELETE * FROM T05_Approved WHERE (F_Section = 'S01') AND (F_Year & F_Month BETWEEN '202601' AND '202604');"},
    {u"frmCsv and frmDeleteDest: names of the people", u"SELECT F_StaffCode, F_StaffName FROM C03_Staff;"},
    {u"frmCsv: names of the sections", u"SELECT F_SectionCode, F_SectionName FROM C02_Section;"},

    // Work style and work-time settings
    {u"UpdateWorkStyle: company work style", u"SELECT * FROM M01_CorpInfo;"},
    {u"work-time settings: name list, weekday",
     u"SELECT F_WeekdayCode, F_WeekdayName FROM M03_WeekdayStyle ORDER BY F_WeekdayCode;"},
    {u"work-time settings: name list, holiday",
     u"SELECT F_HolidayCode, F_HolidayName FROM M04_HolidayStyle ORDER BY F_HolidayCode;"},
    {u"work-time settings: name list, morning holiday",
     u"SELECT F_AmHolidayCode, F_AmHolidayName FROM M05_AmHolidayStyle ORDER BY F_AmHolidayCode;"},
    {u"work-time settings: name list, afternoon holiday",
     u"SELECT F_PmHolidayCode, F_PmHolidayName FROM M06_PmHolidayStyle ORDER BY F_PmHolidayCode;"},
    {u"work-time settings: name list, adjust limits",
     u"SELECT F_AdjustCode, F_AdjustName FROM M07_AdjustHours ORDER BY F_AdjustCode;"},
    {u"work-time settings: show and update, weekday", u"SELECT * FROM M03_WeekdayStyle WHERE (F_WeekdayCode = 1);"},
    {u"work-time settings: show and update, holiday", u"SELECT * FROM M04_HolidayStyle WHERE (F_HolidayCode = 1);"},
    {u"work-time settings: show and update, morning holiday",
     u"SELECT * FROM M05_AmHolidayStyle WHERE (F_AmHolidayCode = 1);"},
    {u"work-time settings: show and update, afternoon holiday",
     u"SELECT * FROM M06_PmHolidayStyle WHERE (F_PmHolidayCode = 1);"},
    {u"work-time settings: show and update, adjust limits", u"SELECT * FROM M07_AdjustHours WHERE (F_AdjustCode = 1);"},
    {u"work-time settings: people who use it, weekday",
     u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_Weekday = 1);"},
    {u"work-time settings: people who use it, holiday",
     u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_Holiday = 1);"},
    {u"work-time settings: people who use it, morning holiday",
     u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_AmHoliday = 1);"},
    {u"work-time settings: people who use it, afternoon holiday",
     u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_PmHoliday = 1);"},
    {u"work-time settings: people who use it, adjust limits",
     u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_AdjustHours = 1);"},
    {u"work-time settings: delete, weekday", u"DELETE * FROM M03_WeekdayStyle WHERE (F_WeekdayCode = 1);"},
    {u"work-time settings: delete, holiday", u"DELETE * FROM M04_HolidayStyle WHERE (F_HolidayCode = 1);"},
    {u"work-time settings: delete, morning holiday", u"DELETE * FROM M05_AmHolidayStyle WHERE (F_AmHolidayCode = 1);"},
    {u"work-time settings: delete, afternoon holiday",
     u"DELETE * FROM M06_PmHolidayStyle WHERE (F_PmHolidayCode = 1);"},
    {u"work-time settings: delete, adjust limits", u"DELETE * FROM M07_AdjustHours WHERE (F_AdjustCode = 1);"},

    // Staff settings
    {u"staff settings: choices, weekday",
     u"SELECT F_WeekdayCode, F_WeekdayName FROM M03_WeekdayStyle WHERE (F_WeekdayCode > 0) ORDER BY F_WeekdayCode;"},
    {u"staff settings: choices, holiday",
     u"SELECT F_HolidayCode, F_HolidayName FROM M04_HolidayStyle WHERE (F_HolidayCode > 0) ORDER BY F_HolidayCode;"},
    {u"staff settings: choices, morning holiday",
     u"SELECT F_AmHolidayCode, F_AmHolidayName FROM M05_AmHolidayStyle WHERE (F_AmHolidayCode > 0) ORDER BY "
     u"F_AmHolidayCode;"},
    {u"staff settings: choices, afternoon holiday",
     u"SELECT F_PmHolidayCode, F_PmHolidayName FROM M06_PmHolidayStyle WHERE (F_PmHolidayCode > 0) ORDER BY "
     u"F_PmHolidayCode;"},
    {u"staff settings: choices, adjust limits",
     u"SELECT F_AdjustCode, F_AdjustName FROM M07_AdjustHours WHERE (F_AdjustCode > 0) ORDER BY F_AdjustCode;"},
    {u"staff settings: choices, access rights",
     u"SELECT DISTINCT F_AccessCode, F_AccessName FROM M08_Access WHERE (F_AccessCode > 0) ORDER BY F_AccessCode;"},
    {u"staff settings: people of a section",
     u"SELECT F_StaffCode, F_StaffName FROM C03_Staff WHERE (F_Section = 'S01') AND (F_Display = True) ORDER BY "
     u"F_Order;"},
    {u"staff settings: people of all sections",
     u"SELECT F_StaffCode, F_StaffName FROM C03_Staff WHERE (F_Display = True) ORDER BY F_Order;"},
    {u"ShowStaff: settings of a person",
     u"SELECT F_Password, F_CloseDay, F_PaidTotal, F_EnterDelay, F_LeaveGain, F_Weekday, F_Holiday, F_AmHoliday, "
     u"F_PmHoliday, F_AdjustHours, F_Access FROM M02_StaffInfo WHERE (F_StaffCode = '1001');"},
    {u"UpdateStaff: settings of a person", u"SELECT * FROM M02_StaffInfo WHERE (F_StaffCode = '1001');"},
    {u"DeleteStaff: settings of a person", u"DELETE * FROM M02_StaffInfo WHERE (F_StaffCode = '1001');"},
    {u"UpdatePassword: password of a person", u"SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001');"},

    // Calendar
    {u"CreateCalendar: days of a year",
     u"SELECT F_DateID, F_Date, F_Holiday, F_Type FROM T01_Calendar WHERE (F_Date BETWEEN #2026/01/01# And "
     u"#2026/12/31#);"},
    {u"ShowCalendar: days of a year",
     u"SELECT F_Date, F_Holiday, F_Type, F_DateID FROM T01_Calendar WHERE (F_Date BETWEEN #2026/01/01# And "
     u"#2026/12/31#) ORDER BY F_Date;"},
    {u"UpdateCalendar: all days", u"SELECT * FROM T01_Calendar;"},

    // Access-right settings
    {u"access rights: name list", u"SELECT DISTINCT F_AccessCode, F_AccessName FROM M08_Access ORDER BY F_AccessCode;"},
    {u"ShowAccess: rows of a right", u"SELECT * FROM M08_Access WHERE (F_AccessCode = 1) ORDER BY F_Order;"},
    {u"UpdateAccess, DeleteAccess: rows of a right taken away", u"DELETE * FROM M08_Access WHERE (F_AccessCode = 1);"},
    {u"UpdateAccess: rows to add to", u"SELECT * FROM M08_Access;"},
    {u"IsUsedAccess: people who have the right", u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_Access = 1);"},

    // Company and section records
    {u"ShowCorp: company record",
     u"SELECT F_Corp, F_Branch, F_ZipCode, F_Pref, F_Address1, F_Address2, F_Tel, F_Fax, F_Title, F_President FROM "
     u"C01_Corp;"},
    {u"UpdateCorp: company record", u"SELECT * FROM C01_Corp;"},
    {u"section records: list", u"SELECT F_SectionCode, F_SectionName, F_Order FROM C02_Section ORDER BY F_Order;"},
    {u"ShowSection, UpdateSection: one section",
     u"SELECT * FROM C02_Section WHERE (F_SectionCode = 'S01') ORDER BY F_Order;"},
    {u"IsUsedSection: people of the section", u"SELECT F_Section FROM C03_Staff WHERE (F_Section = 'S01');"},
    {u"IsUsedSection: rights for the section", u"SELECT F_Section FROM M08_Access WHERE (F_Section = 'S01');"},
    {u"DeleteSection: one section", u"DELETE * FROM C02_Section WHERE (F_SectionCode = 'S01');"},

    // Staff records
    {u"staff records: list",
     u"SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_StaffCode <> 'ADMIN') ORDER BY F_Order;"},
    {u"ShowStaffRecord: one person",
     u"SELECT F_StaffCode, F_StaffName, F_Kana, F_Section, F_ZipCode, F_Pref, F_Address1, F_Address2, F_Tel, "
     u"F_HPhone, F_EMail, F_Birth, F_Sex, F_Join, F_Retire, F_Order, F_Display FROM C03_Staff WHERE (F_StaffCode = "
     u"'1001');"},
    {u"IsUsedStaff: settings of the person", u"SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_StaffCode = '1001');"},
    {u"IsUsedStaff: card rows of the person", u"SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = '1001');"},
    {u"IsUsedStaff: destinations of the person", u"SELECT F_DestCode FROM T04_Destination WHERE (F_User = '1001');"},
    {u"UpdateStaffRecord: one person", u"SELECT * FROM C03_Staff WHERE (F_StaffCode = '1001');"},
    {u"DeleteStaffRecord: one person", u"DELETE * FROM C03_Staff WHERE (F_StaffCode = '1001');"},

    // Data move
    {u"DeleteCalendarRange: days outside the range",
     u"DELETE * FROM T01_Calendar WHERE (F_DateID NOT BETWEEN '20260401' AND '20260430');"},
    {u"DeleteApprovedRange: months outside the range",
     u"DELETE * FROM T05_Approved WHERE (F_Year & F_Month NOT BETWEEN '202601' AND '202604');"},
    {u"DeleteCalendarRange: days of the range",
     u"DELETE * FROM T01_Calendar WHERE (F_DateID BETWEEN '20260401' AND '20260430');"},
    {u"DeleteApprovedRange: months of the range",
     u"DELETE * FROM T05_Approved WHERE (F_Year & F_Month BETWEEN '202601' AND '202604');"},
    {u"RenumberKurbo: card ids from 1 again", u"UPDATE T02_Kurbo SET F_KurboID = F_KurboID - 30;"},
};

// The find and filter criteria of the record sets.
inline constexpr QuotedStatement quotedCriteria[] = {
    // Days and card rows
    {u"T01_Calendar, WhichHoliday: the day", u"F_Date = #2026/04/01#"},
    {u"T02_Kurbo, TimeCardStatus, GetKurboID, RecordLeave: the row of the day; T01_Calendar, UpdateCalendar: the "
     u"day",
     u"F_DateID = '20260401'"},
    {u"T02_Kurbo, RecordEnter: the row of the day", u"F_DateID = 20260401"},
    {u"T02_Kurbo, UpdateDayly: the card row", u"F_KurboID = 1"},
    {u"T04_Destination, UpdateGoOut: a destination by its name", u"F_DestName = '本社'"},

    // Saved months
    {u"T05_Approved with F_YearMonth, UpdateMonthly: the month", u"F_YearMonth = '202604'"},
    {u"T05_Approved with F_YearMonth, UpdateMonthly: later months", u"F_YearMonth > '202604'"},
    {u"T05_Approved with F_YearMonth, UpdateTotal, CSV import: a person's month",
     u"F_Staff = '1001' AND F_YearMonth = '202604'"},
    {u"T05_Approved with F_YearMonth, UpdateTotal: later months of a person",
     u"F_Staff = '1001' AND F_YearMonth > '202604'"},
    {u"T05_Approved with F_YearMonth, UpdateTotal: later months of a person, month as number",
     u"F_Staff = '1001' AND F_YearMonth > 202604"},
    {u"T05_Approved with F_YearMonth, CSV import: months of a person", u"F_Staff = '1001'"},

    // Names already in use
    {u"M03_WeekdayStyle name list, CheckWeekday: same name", u"F_WeekdayName = '通常勤務'"},
    {u"M04_HolidayStyle name list, CheckHoliday: same name", u"F_HolidayName = '通常休日'"},
    {u"M05_AmHolidayStyle name list, CheckAmHoliday: same name", u"F_AmHolidayName = '午前半休'"},
    {u"M06_PmHolidayStyle name list, CheckPmHoliday: same name", u"F_PmHolidayName = '午後半休'"},
    {u"M07_AdjustHours name list, CheckAdjust: same name", u"F_AdjustName = '標準調整'"},
    {u"M08_Access name list, access-right CheckData: same name", u"F_AccessName = '一般'"},
    {u"C02_Section list, section CheckData: same name", u"F_SectionName = '本社'"},
    {u"C03_Staff list, staff record CheckData: same name", u"F_StaffName = '山田太郎'"},

    // Codes and positions
    {u"C02_Section list, section CheckData: same code; cmdUp, cmdDown: the chosen row", u"F_SectionCode = 'S01'"},
    {u"C03_Staff list, staff record CheckData: same code; cmdUp, cmdDown: the chosen row; M02_StaffInfo, "
     u"UpdateTotal: the balance",
     u"F_StaffCode = '1001'"},
    {u"C02_Section and C03_Staff lists, cmdUp, cmdDown: the neighbour", u"F_Order = 2"},
};

} // namespace kurbo::test
