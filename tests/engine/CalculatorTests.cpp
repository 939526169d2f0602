#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/DateTime.h"
#include "engine/Moments.h"
#include "engine/Text.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <tuple>

using namespace vellarno;

/// Keeps what is written, in the order of the window's labels.
struct Labels final : ResultLabels
{
    std::map<int, std::string> All;

    void SetDati(int Index, const std::string& Caption) override { All[Index] = Caption + " "; }
    void SetTotali(int Index, const std::string& Caption) override { SetDati(6 + Index, Caption); }
    void SetHourglass(bool Shown) override
    {
        SetDati(Shown ? -1 : 15, All.empty() ? "hourglass" : "pointer"); // comes first, goes last
    }
    std::string Text() const
    {
        std::string Text;
        for (const auto& [Index, Caption] : All) Text += Caption;
        return Text;
    }
};

TEST(Calculator, TimesOfOneDay)
{
    const std::tuple<double, double, const char*> Rows[] = {
        {TimeSerial(23, 0, 0), TimeSerial(1, 0, 0), "02 00 00 02 120 7.200 "},
        {TimeSerial(10, 0, 0), TimeSerial(10, 0, 0), "00 00 00 00 00 00 "},
        {TimeSerial(0, 0, 1), TimeSerial(0, 0, 0), "23 59 59 23 1.439 86.399 "},
        {TimeSerial(10, 0, 0), TimeSerial(10, 1, 30), "00 01 30 00 01 90 "}};
    for (const auto& [Start, End, Result] : Rows) {
        Labels Shown;
        CalcTimes(38717 + Start, 38717 + End, End, Shown);
        EXPECT_EQ(Shown.Text(), Result);
    }
}

TEST(Calculator, YearsMonthsAndDays)
{
    for (const char* Row :
         {"1/1/2005 31/12/2005 0 11 30", "1/1/2005 1/1/2006 1 0 0", "10/12/2004 20/1/2005 0 1 10",
          "15/1/2005 10/3/2006 1 1 26", "31/1/2005 28/2/2005 0 0 28", "15/3/2005 10/3/2006 0 11 23",
          "31/3/2005 30/3/2006 0 11 27", "20/2/2004 10/1/2005 0 10 18",
          "29/2/2004 28/2/2005 0 11 30", "29/2/2004 1/3/2005 1 0 0", "31/3/2005 1/3/2006 0 11 0"})
        for (const double EndTime : {0.0, 0.75}) {
            std::istringstream Text(Row);
            std::string From, To;
            Text >> From >> To;
            const auto [Y, M, D, Days, Weeks] = DateDifference(*CDate(From), *CDate(To) + EndTime);
            EXPECT_EQ(From + " " + To + " " + CStr(Y) + " " + CStr(M) + " " + CStr(D), Row);
        }
}

TEST(Calculator, MomentsInEitherOrder)
{
    const struct
    {
        int Days; ///< after a Thursday
        double StartTime, EndTime;
        const char* Result;
        bool SaturdayIsHoliday = false;
    } Rows[] = {
        // An afternoon end moves to the morning: else Saturday would count as well.
        {2, 0.25, 0.75, "00 00 02 02 00 02 00 00 00 pointer 12 00 00 60 3.600 216.000 "},
        // An incomplete last day goes: else two days would have elapsed.
        {2, 0.75, 0.25, "00 00 01 01 00 00 00 00 00 pointer 12 00 00 36 2.160 129.600 "},
        // Two afternoons stay and both round up, to Friday and Sunday.
        {2, 0.75, 0.875, "00 00 02 02 00 02 01 00 00 pointer 03 00 00 51 3.060 183.600 "},
        {2, 0.75, 0.875, "00 00 02 02 00 01 01 00 00 pointer 03 00 00 51 3.060 183.600 ", true},
        // Noon is neither morning nor afternoon, and rounds to the even day.
        {2, 0.25, 0.5, "00 00 02 02 00 03 01 00 00 pointer 06 00 00 54 3.240 194.400 "},
        {2, 0.5, 0.75, "00 00 02 02 00 02 01 00 00 pointer 06 00 00 54 3.240 194.400 "},
        // The counted end rounds to a day before the start: Friday counts all the same.
        {1, 0.75, 0.25, "00 00 00 00 00 01 00 00 00 pointer 12 00 00 12 720 43.200 "},
        {20000, 0, 0,
         "54 09 02 20.000 2.857 16.620 2.857 2.857 523 pointer "
         "00 00 00 480.000 28.800.000 1.728.000.000 "},
        {401767, 0, 0,
         "hourglass 1.100 00 01 401.767 57.395 333.864 57.395 57.395 10.508 pointer "
         "00 00 00 9.642.408 578.544.480 34.712.668.800 "}};
    for (const auto& [Days, StartTime, EndTime, Result, SaturdayIsHoliday] : Rows) {
        const Moment Start{38421, StartTime}, End{38421.0 + Days, EndTime};
        for (const auto& Period : {OrderMoments(Start, End), OrderMoments(End, Start)}) {
            Labels Dates, Times;
            CalcDates(Period.StartDate, Period.CountedEnd, SaturdayIsHoliday, Dates);
            CalcTimes(Period.StartDate, Period.EndDate, std::nullopt, Times);
            EXPECT_EQ(Dates.Text() + Times.Text(), Result);
        }
    }
}
