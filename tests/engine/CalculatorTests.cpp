#include "engine/CalcDates.h"
#include "engine/CalcTimes.h"
#include "engine/DateTime.h"
#include "engine/Moments.h"
#include "engine/Text.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

using namespace vellarno;

/// Keeps what is written, in the order of the window's labels.
struct Labels final : ResultLabels
{
    std::map<int, std::string> All;

    void SetDati(int Index, const std::string& Caption) override { All[Index] = Caption; }
    void SetTotali(int Index, const std::string& Caption) override { All[6 + Index] = Caption; }
    void SetHourglass(bool Shown) override { All[Shown ? -1 : 15] = Shown ? "long" : "pointer"; }
};

TEST(Calculator, YearsMonthsAndDays)
{
    for (const char* Row :
         {"1/1/2005 31/12/2005 0 11 30", "1/1/2005 1/1/2006 1 0 0", "10/12/2004 20/1/2005 0 1 10",
          "15/1/2005 10/3/2006 1 1 26", "31/1/2005 28/2/2005 0 0 28", "15/3/2005 10/3/2006 0 11 23",
          "31/3/2005 30/3/2006 0 11 27", "20/2/2004 10/1/2005 0 10 18",
          "29/2/2004 28/2/2005 0 11 30", "29/2/2004 1/3/2005 1 0 0", "31/3/2005 1/3/2006 0 11 0"}) {
        std::istringstream Text(Row);
        std::string From, To;
        Text >> From >> To;
        const auto [Y, M, D, Days, Weeks] = DateDifference(*CDate(From), *CDate(To) + 0.75);
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
        {2, 0.25, 0.75, "00 00 02 12 00 00 02 00 02 00 00 00 60 3.600 216.000 pointer "},
        // Two afternoons stay and both round up, to Friday and Sunday.
        {2, 0.75, 0.875, "00 00 02 03 00 00 02 00 02 01 00 00 51 3.060 183.600 pointer "},
        {2, 0.75, 0.875, "00 00 02 03 00 00 02 00 01 01 00 00 51 3.060 183.600 pointer ", true},
        // Noon is neither morning nor afternoon, and rounds to the even day.
        {2, 0.5, 0.75, "00 00 02 06 00 00 02 00 02 01 00 00 54 3.240 194.400 pointer "},
        // The last day isn't complete, and the counted end rounds to a day before the start:
        // Friday counts all the same.
        {1, 0.75, 0.25, "00 00 00 12 00 00 00 00 01 00 00 00 12 720 43.200 pointer "},
        {401767, 0, 0,
         "long 1.100 00 01 00 00 00 401.767 57.395 333.864 57.395 57.395 10.508 "
         "9.642.408 578.544.480 34.712.668.800 pointer "}};
    for (const auto& [Days, StartTime, EndTime, Result, SaturdayIsHoliday] : Rows) {
        const Moment Start{38421, StartTime}, End{38421.0 + Days, EndTime};
        for (const auto& Period : {OrderMoments(Start, End), OrderMoments(End, Start)}) {
            Labels Shown;
            CalcDates(Period.StartDate, Period.CountedEnd, SaturdayIsHoliday, Shown);
            CalcTimes(Period.StartDate, Period.EndDate, std::nullopt, Shown);
            std::string Text;
            for (const auto& [Index, Caption] : Shown.All) Text += Caption + " ";
            EXPECT_EQ(Text, Result);
        }
    }
}
