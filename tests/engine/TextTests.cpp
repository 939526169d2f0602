#include "engine/DateTime.h"
#include "engine/Text.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

using namespace vellarno;

TEST(Text, FormatsNumbers)
{
    const std::tuple<double, const char*, const char*> Rows[] = {
        {5, "00", "05"},        {123, "00", "123"},         {-2, "00", "-02"},
        {0, "00", "00"},        {-0.0, "00", "00"},         {999, "0000", "0999"},
        {0, "0,0", "00"},       {5, "0,0", "05"},           {999, "0,0", "999"},
        {1000, "0,0", "1.000"}, {999999, "0,0", "999.999"}, {1234567, "0,0", "1.234.567"},
        {-123, "0,0", "-123"}};
    for (const auto& [Value, Pattern, Result] : Rows) EXPECT_EQ(Format(Value, Pattern), Result);
    EXPECT_EQ(Format(std::int64_t{34712668800}, "0,0"), "34.712.668.800");
    EXPECT_EQ(Format(std::string("007"), "00"), "07");
    for (const char* Unchanged : {"", "x", "-5", "1,5", "5 "})
        EXPECT_EQ(Format(Unchanged, "00"), Unchanged);
}

TEST(Text, FormatsDates)
{
    const double Monday = DateSerial(2005, 1, 3) + TimeSerial(14, 5, 9);
    EXPECT_EQ(Format(Monday, "hh.mm.ss"), "14.05.09");
    EXPECT_EQ(Format(Monday, " dddd  dd mmm yyyy"), " lunedì  03 gen 2005");
    EXPECT_EQ(Format(DateSerial(2009, 9, 30), "mmm yy"), "set 09");
    EXPECT_EQ(Format(static_cast<DayNumber>(Monday), "dd"), "03");

    std::string Months;
    for (int i = 1; i <= 12; ++i) Months += Format(DateSerial(999, i, 1), " mmm yyyy");
    EXPECT_EQ(Months, " gen 0999 feb 0999 mar 0999 apr 0999 mag 0999 giu 0999 lug 0999 ago 0999"
                      " set 0999 ott 0999 nov 0999 dic 0999");
    std::string Weekdays;
    for (int i = 0; i <= 8; ++i) Weekdays += WeekdayText(i) + " ";
    EXPECT_EQ(Weekdays, " Domenica Lunedì Martedì Mercoledì Giovedì Venerdì Sabato  ");
}

TEST(Text, ReadsNumbers)
{
    const std::tuple<const char*, bool, int> Rows[] = {
        {"0", true, 0},     {"0007", true, 7},  {"32767", true, 32767}, {"32768", true, -1},
        {"", false, -1},    {"-1", false, -1},  {"+1", false, -1},      {" 1", false, -1},
        {"1e3", false, -1}, {"1,5", false, -1}, {"٣", false, -1}};
    for (const auto& [Text, Numeric, IntegerOrNone] : Rows) {
        EXPECT_EQ(IsNumeric(Text), Numeric) << Text;
        EXPECT_EQ(CDbl(Text).has_value(), Numeric) << Text;
        EXPECT_EQ(CInt(Text).value_or(-1), IntegerOrNone) << Text;
    }
    EXPECT_EQ(CDbl("0999"), 999.0);
    EXPECT_FALSE(CDbl(std::string(400, '9')));
}

TEST(Text, RoundsTiesToEven)
{
    const std::tuple<double, int> Rows[] = {{2.5, 2},         {3.5, 4},         {-2.5, -2},
                                            {38353.5, 38354}, {38354.5, 38354}, {-0.51, -1}};
    for (const auto& [Value, Result] : Rows) EXPECT_EQ(CLng(Value), Result) << Value;
}

TEST(Text, ReadsDates)
{
    for (const char* Text : {"5/3/2009", "05/03/2009", " 5 / 3 / 2009 ", "5/3/9", "5/3/09"})
        EXPECT_EQ(CDate(Text), DateSerial(2009, 3, 5)) << Text;
    for (const char* Text : {"29/02/2008", "29/2/4", "1/1/100", "31/12/9999", "01/01/999"})
        EXPECT_TRUE(IsDate(Text)) << Text;
    for (const char* Text :
         {"31/04/2009", "29/02/2009", "29/02/1900", "0/1/2009",   "1/0/2009",  "00/00/0000",
          "1/13/2009",  "32/1/2009",  "257/1/2009", "1/257/2009", "1/1/10000", "1/1/65545",
          "",           "//",         "1/1/",       "/1/2009",    "1/1/2009/", "1/1/2009/1",
          "1-1-2009",   "1/1/-2009",  "1 1/1/2009", "366/1/2009"})
        EXPECT_FALSE(IsDate(Text)) << Text;
}
