#include "engine/CalcDates.h"
#include "engine/Moments.h"
#include "engine/Text.h"

#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

using namespace vellarno;

TEST(Calculator, YearsMonthsAndDays)
{
    for (const char* Row :
         {"1/1/2005 31/12/2005 0 11 30", "1/1/2005 1/1/2006 1 0 0", "10/12/2004 20/1/2005 0 1 10",
          "15/1/2005 10/3/2006 1 1 26", "31/1/2005 28/2/2005 0 0 28", "15/3/2005 10/3/2006 0 11 23",
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
    const std::tuple<double, double, double> Rows[] = {
        {0.25, 0.75, 2.25},   // an afternoon end moves to the morning, as it would round up alone
        {0.75, 0.25, 1.25},   // a last day that isn't complete goes
        {0.75, 0.875, 2.875}, // two afternoons round up both
        {0.25, 0.5, 2.5},     // noon is neither morning
        {0.5, 0.75, 2.75}};   // nor afternoon
    for (const auto& [StartTime, EndTime, CountedEnd] : Rows) {
        const Moment Start{38421, StartTime}, End{38423, EndTime};
        for (const auto& Period : {OrderMoments(Start, End), OrderMoments(End, Start)})
            EXPECT_EQ(std::tuple(Period.StartDate, Period.EndDate, Period.CountedEnd),
                      std::tuple(38421 + StartTime, 38423 + EndTime, 38421 + CountedEnd));
    }
}
