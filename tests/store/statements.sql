---- Every statement the system issues, with example values in the places: its use, then it, a line each.

---- Main window and login
-- login: sections of this file; also the test for a usable file
SELECT F_SectionCode, F_SectionName FROM C02_Section WHERE (F_DB = 'カレントデータベース') AND (F_Display = True) ORDER BY F_Order;
-- login: people of a section
SELECT C03_Staff.F_StaffCode, C03_Staff.F_StaffName FROM C03_Staff INNER JOIN M02_StaffInfo ON C03_Staff.F_StaffCode = M02_StaffInfo.F_StaffCode Where (C03_Staff.F_Section = 'S01') AND (C03_Staff.F_Display = True) ORDER BY C03_Staff.F_Order;
-- RecordedDays: days that have card rows
SELECT DISTINCT F_DateID FROM T02_Kurbo ORDER BY F_DateID;
-- IsPasswordOK: password of a person
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_StaffCode = '1001') AND (F_PassWord = 'kurbo1');
-- GetTimeDiff: punch adjustments of a person
SELECT F_EnterDelay, F_LeaveGain FROM M02_StaffInfo WHERE (F_StaffCode = '1001');
-- GetFirstDate: first day of the calendar
SELECT F_Date FROM T01_Calendar ORDER BY F_Date;
-- GetFirstMonth: first saved month
SELECT F_Year, F_Month FROM T05_Approved ORDER BY F_Year, F_Month;


---- Set-up tests
-- IsCorpOK: company record
SELECT F_Corp FROM C01_Corp;
-- IsSectionOK: a section besides the reserved one
SELECT F_SectionCode FROM C02_Section WHERE (F_SectionName <> '新しい部課');
-- IsStaffOK: a person besides the reserved ones
SELECT F_StaffCode FROM C03_Staff WHERE (F_StaffName <> '新しい社員') AND (F_StaffName <> 'ADMIN');
-- IsWorkStyleOK: company work style
SELECT F_WorkStyle FROM M01_CorpInfo;
-- IsWorkTimeOK: a weekday style besides the reserved one
SELECT F_WeekdayCode FROM M03_WeekdayStyle WHERE (F_WeekdayName <> '新しい勤務時間');
-- IsAdjustOK: adjust limits besides the reserved ones
SELECT F_AdjustCode FROM M07_AdjustHours WHERE (F_AdjustName <> '新しい時間調整');
-- IsAccessOK: an access right besides the reserved one
SELECT F_AccessCode FROM M08_Access WHERE (F_AccessName <> '新しいアクセス権');


---- Next codes and positions
-- GenerateKurboID: next card id; also the first id for renumbering
SELECT F_KurboID FROM T02_Kurbo ORDER BY F_KurboID;
-- go-out update: next destination code
SELECT F_DestCode FROM T04_Destination ORDER BY F_DestCode;
-- work-time settings: next code, weekday
SELECT F_WeekdayCode FROM M03_WeekdayStyle ORDER BY F_WeekdayCode;
-- work-time settings: next code, holiday
SELECT F_HolidayCode FROM M04_HolidayStyle ORDER BY F_HolidayCode;
-- work-time settings: next code, morning holiday
SELECT F_AmHolidayCode FROM M05_AmHolidayStyle ORDER BY F_AmHolidayCode;
-- work-time settings: next code, afternoon holiday
SELECT F_PmHolidayCode FROM M06_PmHolidayStyle ORDER BY F_PmHolidayCode;
-- work-time settings: next code, adjust limits
SELECT F_AdjustCode FROM M07_AdjustHours ORDER BY F_AdjustCode;
-- UpdateAccess: next access-right code
SELECT F_AccessCode FROM M08_Access ORDER BY F_AccessCode;
-- GetNextSectionOrder: last position of the sections
SELECT F_Order FROM C02_Section ORDER BY F_Order;
-- GetNextStaffOrder: last position of the people
SELECT F_Order FROM C03_Staff ORDER BY F_Order;


---- Shared readers and rights
-- GetDbPath: where a section's data are
SELECT F_DB FROM C02_Section WHERE (F_SectionCode = 'S01');
-- WhichHoliday: names of the days
SELECT F_Date, F_Holiday FROM T01_Calendar;
-- ExistCalendar: calendar rows of a range
SELECT F_Date FROM T01_CALENDAR WHERE (F_Date BETWEEN #2026/04/01# And #2026/04/30#);
-- EndAllNight: leave punches before a day; also the stay carried into a card
SELECT T02_Kurbo.F_Leave FROM T01_Calendar INNER JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T02_Kurbo.F_User = '1001') AND (T01_Calendar.F_Date < #2026/04/01#) ORDER BY T01_Calendar.F_Date;
-- GetAccess: rights for the person's own section
SELECT * FROM M08_Access INNER JOIN M02_StaffInfo ON M08_Access.F_AccessCode = M02_StaffInfo.F_Access WHERE (M08_Access.F_Section = 'MySection') AND (M02_StaffInfo.F_StaffCode = '1001');
-- GetAccess: rights for another section
SELECT * FROM M08_Access INNER JOIN M02_StaffInfo ON M08_Access.F_AccessCode = M02_StaffInfo.F_Access WHERE (M08_Access.F_Section = 'S01') AND (M02_StaffInfo.F_StaffCode = '1001');


---- Punches
-- TimeCardStatus, GetKurboID, RecordEnter, RecordLeave: card rows up to a day
SELECT * FROM T02_Kurbo WHERE (F_User = '1001') AND (F_DateID <= '20260401') ORDER BY F_DateID;
-- RecordGoOut, RecordComeIn, ShowGoOut: outings of a card row
SELECT * FROM T03_GoOut WHERE (F_KurboID = 1) ORDER BY F_Order;


---- Work rules
-- GetWorkStyle and the work style screen: company work style
SELECT F_WorkStyle, F_FlexStandard, F_AmHolidayWork, F_AmFlex, F_AmFlexStandard, F_PmHolidayWork, F_PmFlex, F_PmFlexStandard, F_RoundMethod, F_RoundEnter, F_RoundLeave, F_RoundHour, F_RoundUnit, F_CountUnit, F_Diff, F_LegalOver, F_Over, F_Late, F_Early, F_Holiday, F_HolidayLate, F_LegalHoliday, F_LegalLate, F_Absent, F_Paid, F_Special, F_Compens, F_AbsentDay, F_LateEnter, F_EarlyLeave FROM M01_CorpInfo;
-- GetStaffInfo: settings of a person
SELECT F_EnterDelay, F_LeaveGain, F_CloseDay, F_PaidTotal FROM M02_StaffInfo WHERE (F_StaffCode = '1001');
-- GetWorkTime: bands of a weekday
SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartWork2, F_EndWork2, F_StartFlex0, F_EndFlex0, F_StartFlex1, F_EndFlex1, F_StartFlex2, F_EndFlex2, F_StartFlex3, F_EndFlex3, F_StartLegalOver0, F_EndLegalOver0, F_StartOver0, F_EndOver0, F_StartOver1, F_EndOver1, F_StartOver2, F_EndOver2, F_StartLate0, F_EndLate0, F_StartLate1, F_EndLate1, F_StartLate2, F_EndLate2, F_StartAfterLate0, F_EndAfterLate0, F_StartEarly0, F_EndEarly0 FROM M02_StaffInfo INNER JOIN M03_WeekdayStyle ON M02_StaffInfo.F_Weekday = M03_WeekdayStyle.F_WeekdayCode WHERE (M02_StaffInfo.F_StaffCode = '1001');
-- GetWorkTime: bands of a holiday
SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartWork2, F_EndWork2, F_StartLate0, F_EndLate0, F_StartLate1, F_EndLate1, F_StartLate2, F_EndLate2, F_StartAfterLate0, F_EndAfterLate0, F_StartEarly0, F_EndEarly0 FROM M02_StaffInfo INNER JOIN M04_HolidayStyle ON M02_StaffInfo.F_Holiday = M04_HolidayStyle.F_HolidayCode WHERE (M02_StaffInfo.F_StaffCode = '1001');
-- GetWorkTime: bands of a morning holiday
SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartFlex0, F_EndFlex0, F_StartFlex1, F_EndFlex1, F_StartLegalOver0, F_EndLegalOver0, F_StartOver0, F_EndOver0, F_StartOver1, F_EndOver1, F_StartOver2, F_EndOver2, F_StartLate0, F_EndLate0, F_StartLate1, F_EndLate1, F_StartLate2, F_EndLate2, F_StartAfterLate0, F_EndAfterLate0, F_StartEarly0, F_EndEarly0, F_StartEarly1, F_EndEarly1 FROM M02_StaffInfo INNER JOIN M05_AmHolidayStyle ON M02_StaffInfo.F_AmHoliday = M05_AmHolidayStyle.F_AmHolidayCode WHERE (M02_StaffInfo.F_StaffCode = '1001');
-- GetWorkTime: bands of an afternoon holiday
SELECT F_StartWork0, F_EndWork0, F_StartWork1, F_EndWork1, F_StartFlex0, F_EndFlex0, F_StartFlex1, F_EndFlex1, F_StartLegalOver0, F_EndLegalOver0, F_StartOver0, F_EndOver0, F_StartOver1, F_EndOver1, F_StartOver2, F_EndOver2, F_StartOver3, F_EndOver3, F_StartLate0, F_EndLate0, F_StartLate1, F_EndLate1, F_StartLate2, F_EndLate2, F_StartAfterLate0, F_EndAfterLate0, F_StartEarly0, F_EndEarly0 FROM M02_StaffInfo INNER JOIN M06_PmHolidayStyle ON M02_StaffInfo.F_PmHoliday = M06_PmHolidayStyle.F_PmHolidayCode WHERE (M02_StaffInfo.F_StaffCode = '1001');


---- Card
-- ShowKurbo: days of a card and the day after
SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T01_Calendar.F_Dummy AS F_Plan, T01_Calendar.F_Dummy AS F_Enter, T01_Calendar.F_Dummy AS F_Leave, T01_Calendar.F_Dummy AS F_Paid, T01_Calendar.F_Dummy AS F_Special, T01_Calendar.F_Dummy AS F_Compens, T01_Calendar.F_Dummy AS F_KurboID FROM T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date BETWEEN #2026/04/01# And #2026/05/01#) AND (T01_Calendar.F_DateID NOT IN (SELECT F_DateID FROM T02_Kurbo WHERE (F_User = '1001'))) UNION SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T02_Kurbo.F_Plan, T02_Kurbo.F_Enter, T02_Kurbo.F_Leave, T02_Kurbo.F_Paid, T02_Kurbo.F_Special, T02_Kurbo.F_Compens, T02_Kurbo.F_KurboID FROM T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date BETWEEN #2026/04/01# And #2026/05/01#) AND (T02_Kurbo.F_User = '1001');
-- card: saved month of a person
SELECT F_WorkDay, F_Work, F_PaidTotal, F_LegalOver, F_Over, F_Late, F_Early, F_Holiday, F_HolidayLate, F_LegalHoliday, F_LegalLate, F_Absent, F_Paid, F_Special, F_Compens, F_AbsentDay, F_LateEnter, F_EarlyLeave, F_PersonalApproval, F_SuperiorApproval FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year = '2026') AND (F_Month = '04');
-- AdjustMonthly: upper limits of a person
SELECT M07_AdjustHours.F_LegalOver, M07_AdjustHours.F_Over, M07_AdjustHours.F_Late, M07_AdjustHours.F_Early, M07_AdjustHours.F_Holiday, M07_AdjustHours.F_HolidayLate, M07_AdjustHours.F_LegalHoliday, M07_AdjustHours.F_LegalLate FROM M02_StaffInfo INNER JOIN M07_AdjustHours ON M02_StaffInfo.F_AdjustHours = M07_AdjustHours.F_AdjustCode WHERE (M02_StaffInfo.F_StaffCode = '1001');
-- card, totals, staff settings, staff records, access rights: sections in view
SELECT F_SectionCode, F_SectionName FROM C02_Section WHERE (F_Display = True) ORDER BY F_Order;
-- card and totals: people of a section
SELECT F_StaffCode, F_StaffName FROM C03_Staff WHERE (F_Section = 'S01') AND (F_Display = True)ORDER BY F_Order;
-- UpdateDayly: card rows of a person
SELECT * FROM T02_Kurbo WHERE (F_User = '1001') ORDER BY F_KurboID;
-- DeleteKurbo: card rows of a period
DELETE * FROM T02_Kurbo WHERE (CLNG(F_DateID) BETWEEN 20260401 AND 20260430) AND (F_User = '1001');
-- UpdateMonthly: saved months of a person
SELECT *, F_Year & F_Month AS F_YearMonth FROM T05_Approved WHERE (F_Staff = '1001');
-- UpdateMonthly: paid-leave balance of a person
SELECT F_PaidTotal From M02_StaffInfo WHERE (F_StaffCode = '1001');
-- UpdatePersonal: the person's approval of a month
SELECT F_PersonalApproval FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year = '2026') AND (F_Month = '04');
-- UpdateSuperior: the superior's approval of a month
SELECT F_SuperiorApproval FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year = '2026') AND (F_Month = '04');


---- Outings and destinations
-- ShowGoOut: destinations of a person, most visited first
SELECT T04_Destination.F_DestCode, T04_Destination.F_DestName FROM T04_Destination INNER JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T04_Destination.F_User = '1001') GROUP BY T04_Destination.F_DestCode, T04_Destination.F_DestName ORDER BY Count(T03_GoOut.F_KurboID) DESC, T04_Destination.F_DestName;
-- go-out detail: expenses to a place
SELECT T03_GoOut.F_Expense FROM T04_Destination INNER JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T04_Destination.F_User = '1001') AND (T04_Destination.F_DestName = '本社') ORDER BY T03_GoOut.F_KurboID;
-- UpdateGoOut: outings of a card row taken away
DELETE * FROM T03_GoOut WHERE (F_KurboID = 1);
-- UpdateGoOut: destinations of a person
SELECT * FROM T04_Destination WHERE (F_User = '1001');
-- UpdateGoOut: outings to add to
SELECT * FROM T03_GoOut ORDER BY F_Order;
-- rptGoOut: outings of a period
SELECT CDate(Left(T02_Kurbo.F_DateID, 4) & '/' & Mid(T02_Kurbo.F_DateID,5, 2) & '/' & Right(T02_Kurbo.F_DateID, 2)) AS F_Date, T03_GoOut.F_Out, T03_GoOut.F_In, T04_Destination.F_DestName, T03_GoOut.F_Expense FROM T04_Destination INNER JOIN (T02_Kurbo INNER JOIN T03_GoOut ON T02_Kurbo.F_KurboID = T03_GoOut.F_KurboID) ON T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T02_Kurbo.F_DateID BETWEEN '20260401' AND '20260430') AND (T02_Kurbo.F_User = '1001') ORDER BY T02_Kurbo.F_DateID, T03_GoOut.F_Order;
-- frmDeleteDest: unused destinations of a person
SELECT T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName FROM T04_Destination LEFT JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination WHERE (T03_GoOut.F_Destination Is Null) AND (T04_Destination.F_User = '1001') ORDER BY T04_Destination.F_DestCode;
-- frmDeleteDest: unused destinations of everybody
SELECT T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName FROM (T04_Destination LEFT JOIN T03_GoOut ON T04_Destination.F_DestCode = T03_GoOut.F_Destination) INNER JOIN C03_Staff ON T04_Destination.F_User = C03_Staff.F_StaffCode WHERE T03_GoOut.F_Destination Is Null GROUP BY T04_Destination.F_User, T04_Destination.F_DestCode, T04_Destination.F_DestName, C03_Staff.F_Order ORDER BY C03_Staff.F_Order, T04_Destination.F_DestCode;
-- DeleteDestination: one destination
DELETE * FROM T04_Destination WHERE F_DestCode = 1


---- Monthly totals
-- ShowTotal: one person
SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_StaffCode = '1001') ;
-- ShowTotal: people of a section
SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_Section = 'S01') AND (F_Display = True) ORDER BY F_Order;
-- ShowTotal: saved months of one person
SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN '202601' AND '202604') AND (T05_Approved.F_Staff = '1001') ORDER BY T05_Approved.F_Year & T05_Approved.F_Month;
-- ShowTotal: saved months of a section by staff
SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN '202601' AND '202604') AND (T05_Approved.F_Section = 'S01') AND (C03_Staff.F_Display = True) ORDER BY C03_Staff.F_Order, T05_Approved.F_Year & T05_Approved.F_Month;
-- ShowTotal: saved months of a section by month
SELECT Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, C03_Staff.F_StaffName, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, T05_Approved.F_Year & T05_Approved.F_Month & Format(C03_Staff.F_Order,'0000') AS F_Order, T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN '202601' AND '202604') AND (T05_Approved.F_Section = 'S01') AND (C03_Staff.F_Display = True) ORDER BY T05_Approved.F_Year & T05_Approved.F_Month, C03_Staff.F_Order;


---- Monthly totals with the months as bare numbers
-- ShowTotal: saved months of one person, months as numbers
SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN 202601 AND 202604) AND (T05_Approved.F_Staff = '1001') ORDER BY T05_Approved.F_Year & T05_Approved.F_Month;
-- ShowTotal: saved months of a section by staff, months as numbers
SELECT C03_Staff.F_StaffName, Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, Format(C03_Staff.F_Order,'0000') & T05_Approved.F_Year & T05_Approved.F_Month AS F_Order, T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN 202601 AND 202604) AND (T05_Approved.F_Section = 'S01') AND (C03_Staff.F_Display = True) ORDER BY C03_Staff.F_Order, T05_Approved.F_Year & T05_Approved.F_Month;
-- ShowTotal: saved months of a section by month, months as numbers
SELECT Format(T05_Approved.F_Year,'0000年 ') & Format(T05_Approved.F_Month,'00月') AS F_YearMonth, C03_Staff.F_StaffName, T05_Approved.F_WorkDay, T05_Approved.F_Work, T05_Approved.F_PaidTotal, T05_Approved.F_LegalOver, T05_Approved.F_Over, T05_Approved.F_Late, T05_Approved.F_Early, T05_Approved.F_Holiday, T05_Approved.F_HolidayLate, T05_Approved.F_LegalHoliday, T05_Approved.F_LegalLate, T05_Approved.F_Absent, T05_Approved.F_Paid, T05_Approved.F_Special, T05_Approved.F_Compens, T05_Approved.F_AbsentDay, T05_Approved.F_LateEnter, T05_Approved.F_EarlyLeave, T05_Approved.F_PersonalApproval, T05_Approved.F_SuperiorApproval, T05_Approved.F_Term, T05_Approved.F_Year & T05_Approved.F_Month & Format(C03_Staff.F_Order,'0000') AS F_Order, T05_Approved.F_Staff FROM T05_Approved INNER JOIN C03_Staff ON T05_Approved.F_Staff = C03_Staff.F_StaffCode WHERE (T05_Approved.F_Year & T05_Approved.F_Month BETWEEN 202601 AND 202604) AND (T05_Approved.F_Section = 'S01') AND (C03_Staff.F_Display = True) ORDER BY T05_Approved.F_Year & T05_Approved.F_Month, C03_Staff.F_Order;


---- Monthly totals, other statements
-- ShowTotal: days of a person for a month without a record
SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T01_Calendar.F_Dummy AS F_Enter, T01_Calendar.F_Dummy AS F_Leave, T01_Calendar.F_Dummy AS F_Paid, T01_Calendar.F_Dummy AS F_Special, T01_Calendar.F_Dummy AS F_Compens, T01_Calendar.F_Dummy AS F_KurboID FROM T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date BETWEEN #2026/04/01# And #2026/05/01#) AND (T01_Calendar.F_DateID NOT IN (SELECT F_DateID FROM T02_Kurbo WHERE (F_User = '1001'))) UNION SELECT T01_Calendar.F_Date, T01_Calendar.F_Type, T02_Kurbo.F_Enter, T02_Kurbo.F_Leave, T02_Kurbo.F_Paid, T02_Kurbo.F_Special, T02_Kurbo.F_Compens, T02_Kurbo.F_KurboID FROM T01_Calendar LEFT JOIN T02_Kurbo ON T01_Calendar.F_DateID = T02_Kurbo.F_DateID WHERE (T01_Calendar.F_Date BETWEEN #2026/04/01# And #2026/05/01#) AND (T02_Kurbo.F_User = '1001');
-- UpdateTotal and CSV import: saved months of everybody
SELECT *, F_Year & F_Month AS F_YearMonth From T05_Approved;
-- UpdateTotal and CSV import: paid-leave balances
SELECT F_StaffCode, F_PaidTotal FROM M02_StaffInfo;
-- CountTotal: saved months of a person
SELECT F_Staff FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year & F_Month BETWEEN '202601' AND '202604');
-- CountTotal: saved months of a section
SELECT F_Staff FROM T05_Approved WHERE (F_Section = 'S01') AND (F_Year & F_Month BETWEEN '202601' AND '202604');
-- DeleteTotal: saved months of a person
DELETE * FROM T05_Approved WHERE (F_Staff = '1001') AND (F_Year & F_Month BETWEEN '202601' AND '202604');
-- DeleteTotal: saved months of a section
DELETE * FROM T05_Approved WHERE (F_Section = 'S01') AND (F_Year & F_Month BETWEEN '202601' AND '202604');
-- frmCsv and frmDeleteDest: names of the people
SELECT F_StaffCode, F_StaffName FROM C03_Staff;
-- frmCsv: names of the sections
SELECT F_SectionCode, F_SectionName FROM C02_Section;


---- Work style and work-time settings
-- UpdateWorkStyle: company work style
SELECT * FROM M01_CorpInfo;
-- work-time settings: name list, weekday
SELECT F_WeekdayCode, F_WeekdayName FROM M03_WeekdayStyle ORDER BY F_WeekdayCode;
-- work-time settings: name list, holiday
SELECT F_HolidayCode, F_HolidayName FROM M04_HolidayStyle ORDER BY F_HolidayCode;
-- work-time settings: name list, morning holiday
SELECT F_AmHolidayCode, F_AmHolidayName FROM M05_AmHolidayStyle ORDER BY F_AmHolidayCode;
-- work-time settings: name list, afternoon holiday
SELECT F_PmHolidayCode, F_PmHolidayName FROM M06_PmHolidayStyle ORDER BY F_PmHolidayCode;
-- work-time settings: name list, adjust limits
SELECT F_AdjustCode, F_AdjustName FROM M07_AdjustHours ORDER BY F_AdjustCode;
-- work-time settings: show and update, weekday
SELECT * FROM M03_WeekdayStyle WHERE (F_WeekdayCode = 1);
-- work-time settings: show and update, holiday
SELECT * FROM M04_HolidayStyle WHERE (F_HolidayCode = 1);
-- work-time settings: show and update, morning holiday
SELECT * FROM M05_AmHolidayStyle WHERE (F_AmHolidayCode = 1);
-- work-time settings: show and update, afternoon holiday
SELECT * FROM M06_PmHolidayStyle WHERE (F_PmHolidayCode = 1);
-- work-time settings: show and update, adjust limits
SELECT * FROM M07_AdjustHours WHERE (F_AdjustCode = 1);
-- work-time settings: people who use it, weekday
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_Weekday = 1);
-- work-time settings: people who use it, holiday
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_Holiday = 1);
-- work-time settings: people who use it, morning holiday
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_AmHoliday = 1);
-- work-time settings: people who use it, afternoon holiday
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_PmHoliday = 1);
-- work-time settings: people who use it, adjust limits
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_AdjustHours = 1);
-- work-time settings: delete, weekday
DELETE * FROM M03_WeekdayStyle WHERE (F_WeekdayCode = 1);
-- work-time settings: delete, holiday
DELETE * FROM M04_HolidayStyle WHERE (F_HolidayCode = 1);
-- work-time settings: delete, morning holiday
DELETE * FROM M05_AmHolidayStyle WHERE (F_AmHolidayCode = 1);
-- work-time settings: delete, afternoon holiday
DELETE * FROM M06_PmHolidayStyle WHERE (F_PmHolidayCode = 1);
-- work-time settings: delete, adjust limits
DELETE * FROM M07_AdjustHours WHERE (F_AdjustCode = 1);


---- Staff settings
-- staff settings: choices, weekday
SELECT F_WeekdayCode, F_WeekdayName FROM M03_WeekdayStyle WHERE (F_WeekdayCode > 0) ORDER BY F_WeekdayCode;
-- staff settings: choices, holiday
SELECT F_HolidayCode, F_HolidayName FROM M04_HolidayStyle WHERE (F_HolidayCode > 0) ORDER BY F_HolidayCode;
-- staff settings: choices, morning holiday
SELECT F_AmHolidayCode, F_AmHolidayName FROM M05_AmHolidayStyle WHERE (F_AmHolidayCode > 0) ORDER BY F_AmHolidayCode;
-- staff settings: choices, afternoon holiday
SELECT F_PmHolidayCode, F_PmHolidayName FROM M06_PmHolidayStyle WHERE (F_PmHolidayCode > 0) ORDER BY F_PmHolidayCode;
-- staff settings: choices, adjust limits
SELECT F_AdjustCode, F_AdjustName FROM M07_AdjustHours WHERE (F_AdjustCode > 0) ORDER BY F_AdjustCode;
-- staff settings: choices, access rights
SELECT DISTINCT F_AccessCode, F_AccessName FROM M08_Access WHERE (F_AccessCode > 0) ORDER BY F_AccessCode;
-- staff settings: people of a section
SELECT F_StaffCode, F_StaffName FROM C03_Staff WHERE (F_Section = 'S01') AND (F_Display = True) ORDER BY F_Order;
-- staff settings: people of all sections
SELECT F_StaffCode, F_StaffName FROM C03_Staff WHERE (F_Display = True) ORDER BY F_Order;
-- ShowStaff: settings of a person
SELECT F_Password, F_CloseDay, F_PaidTotal, F_EnterDelay, F_LeaveGain, F_Weekday, F_Holiday, F_AmHoliday, F_PmHoliday, F_AdjustHours, F_Access FROM M02_StaffInfo WHERE (F_StaffCode = '1001');
-- UpdateStaff: settings of a person
SELECT * FROM M02_StaffInfo WHERE (F_StaffCode = '1001');
-- DeleteStaff: settings of a person
DELETE * FROM M02_StaffInfo WHERE (F_StaffCode = '1001');
-- UpdatePassword: password of a person
SELECT F_Password FROM M02_StaffInfo WHERE (F_StaffCode = '1001');


---- Calendar
-- CreateCalendar: days of a year
SELECT F_DateID, F_Date, F_Holiday, F_Type FROM T01_Calendar WHERE (F_Date BETWEEN #2026/01/01# And #2026/12/31#);
-- ShowCalendar: days of a year
SELECT F_Date, F_Holiday, F_Type, F_DateID FROM T01_Calendar WHERE (F_Date BETWEEN #2026/01/01# And #2026/12/31#) ORDER BY F_Date;
-- UpdateCalendar: all days
SELECT * FROM T01_Calendar;


---- Access-right settings
-- access rights: name list
SELECT DISTINCT F_AccessCode, F_AccessName FROM M08_Access ORDER BY F_AccessCode;
-- ShowAccess: rows of a right
SELECT * FROM M08_Access WHERE (F_AccessCode = 1) ORDER BY F_Order;
-- UpdateAccess, DeleteAccess: rows of a right taken away
DELETE * FROM M08_Access WHERE (F_AccessCode = 1);
-- UpdateAccess: rows to add to
SELECT * FROM M08_Access;
-- IsUsedAccess: people who have the right
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_Access = 1);


---- Company and section records
-- ShowCorp: company record
SELECT F_Corp, F_Branch, F_ZipCode, F_Pref, F_Address1, F_Address2, F_Tel, F_Fax, F_Title, F_President FROM C01_Corp;
-- UpdateCorp: company record
SELECT * FROM C01_Corp;
-- section records: list
SELECT F_SectionCode, F_SectionName, F_Order FROM C02_Section ORDER BY F_Order;
-- ShowSection, UpdateSection: one section
SELECT * FROM C02_Section WHERE (F_SectionCode = 'S01') ORDER BY F_Order;
-- IsUsedSection: people of the section
SELECT F_Section FROM C03_Staff WHERE (F_Section = 'S01');
-- IsUsedSection: rights for the section
SELECT F_Section FROM M08_Access WHERE (F_Section = 'S01');
-- DeleteSection: one section
DELETE * FROM C02_Section WHERE (F_SectionCode = 'S01');


---- Staff records
-- staff records: list
SELECT F_StaffCode, F_StaffName, F_Order FROM C03_Staff WHERE (F_StaffCode <> 'ADMIN') ORDER BY F_Order;
-- ShowStaffRecord: one person
SELECT F_StaffCode, F_StaffName, F_Kana, F_Section, F_ZipCode, F_Pref, F_Address1, F_Address2, F_Tel, F_HPhone, F_EMail, F_Birth, F_Sex, F_Join, F_Retire, F_Order, F_Display FROM C03_Staff WHERE (F_StaffCode = '1001');
-- IsUsedStaff: settings of the person
SELECT F_StaffCode FROM M02_StaffInfo WHERE (F_StaffCode = '1001');
-- IsUsedStaff: card rows of the person
SELECT F_KurboID FROM T02_Kurbo WHERE (F_User = '1001');
-- IsUsedStaff: destinations of the person
SELECT F_DestCode FROM T04_Destination WHERE (F_User = '1001');
-- UpdateStaffRecord: one person
SELECT * FROM C03_Staff WHERE (F_StaffCode = '1001');
-- DeleteStaffRecord: one person
DELETE * FROM C03_Staff WHERE (F_StaffCode = '1001');


---- Data move
-- DeleteCalendarRange: days outside the range
DELETE * FROM T01_Calendar WHERE (F_DateID NOT BETWEEN '20260401' AND '20260430');
-- DeleteApprovedRange: months outside the range
DELETE * FROM T05_Approved WHERE (F_Year & F_Month NOT BETWEEN '202601' AND '202604');
-- DeleteCalendarRange: days of the range
DELETE * FROM T01_Calendar WHERE (F_DateID BETWEEN '20260401' AND '20260430');
-- DeleteApprovedRange: months of the range
DELETE * FROM T05_Approved WHERE (F_Year & F_Month BETWEEN '202601' AND '202604');
-- RenumberKurbo: card ids from 1 again
UPDATE T02_Kurbo SET F_KurboID = F_KurboID - 30;


---- The find and filter criteria of the record sets.
