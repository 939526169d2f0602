#include "engine/DateTime.h"
#include "engine/Text.h"

#include <gtest/gtest.h>

#include <string>

namespace vellarno {

namespace {

TEST(Text, FormatsNumbers)
{
    const struct
    {
        double Value;
        const char* Pattern;
        const char* Result;
    } Rows[] = {{5, "00", "05"},
                {123, "00", "123"},
                {-2, "00", "-02"},
                {0, "00", "00"},
                {-0.0, "00", "00"},
                {999, "0000", "0999"},
                {0, "0,0", "00"},
                {5, "0,0", "05"},
                {999, "0,0", "999"},
                {1000, "0,0", "1.000"},
                {7200, "0,0", "7.200"},
                {999999, "0,0", "999.999"},
                {1234567, "0,0", "1.234.567"},
                {-1234, "0,0", "-1.234"},
                {34712668800, "0,0", "34.712.668.800"}};
    for (const auto& Row : Rows) EXPECT_EQ(Format(Row.Value, Row.Pattern), Row.Result);

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
    EXPECT_EQ(Format(Monday, " mmm yyyy"), " gen 2005");
    EXPECT_EQ(Format(DateSerial(2009, 9, 30), "mmm yy"), "set 09");
    EXPECT_EQ(Format(static_cast<DayNumber>(Monday), "dd"), "03");

    std::string Names;
    for (int Month = 1; Month <= 12; ++Month)
        Names += Format(DateSerial(999, Month, 1), " mmm yyyy");
    EXPECT_EQ(Names, " gen 0999 feb 0999 mar 0999 apr 0999 mag 0999 giu 0999 lug 0999 ago 0999"
                     " set 0999 ott 0999 nov 0999 dic 0999");
    for (int Number = 1; Number <= 7; ++Number)
        Names += WeekdayText(Number) + Format(Number, "dddd");
    EXPECT_EQ(Names.substr(108), "DomenicadomenicaLunedìlunedìMartedìmartedìMercoledìmercoledì"
                                 "GiovedìgiovedìVenerdìvenerdìSabatosabato");
    EXPECT_EQ(WeekdayText(0) + WeekdayText(8), "");
}

TEST(Text, ReadsNumbers)
{
    const struct
    {
        const char* Text;
        bool Numeric;
        int Integer; ///< -1 where there is none
    } Rows[] = {{"0", true, 0},      {"0007", true, 7}, {"32767", true, 32767},
                {"32768", true, -1}, {"", false, -1},   {"-1", false, -1},
                {"+1", false, -1},   {" 1", false, -1}, {"1e3", false, -1},
                {"1,5", false, -1},  {"٣", false, -1},  {"99999999999999999999", true, -1}};
    for (const auto& Row : Rows) {
        EXPECT_EQ(IsNumeric(Row.Text), Row.Numeric) << Row.Text;
        EXPECT_EQ(CDbl(Row.Text).has_value(), Row.Numeric) << Row.Text;
        EXPECT_EQ(CInt(Row.Text).value_or(-1), Row.Integer) << Row.Text;
    }
    EXPECT_EQ(CDbl("0999"), 999.0);
    EXPECT_FALSE(CDbl(std::string(400, '9')));
}

TEST(Text, RoundsTiesToEven)
{
    const struct
    {
        double Value;
        int Result;
    } Rows[] = {{2.5, 2},         {3.5, 4},         {-2.5, -2}, {-3.5, -4},
                {38353.5, 38354}, {38354.5, 38354}, {0.49, 0},  {-0.51, -1}};
    for (const auto& Row : Rows) EXPECT_EQ(CLng(Row.Value), Row.Result) << Row.Value;
}

TEST(Text, ReadsDates)
{
    const double Day = DateSerial(2009, 3, 5);
    for (const char* Text : {"5/3/2009", "05/03/2009", " 5 / 3 / 2009 ", "5/3/9", "5/3/09"})
        EXPECT_EQ(CDate(Text), Day) << Text;
    for (const char* Text : {"29/02/2008", "29/2/4", "1/1/100", "31/12/9999", "01/01/999"})
        EXPECT_TRUE(IsDate(Text)) << Text;
    for (const char* Text :
         {"31/04/2009", "29/02/2009", "29/02/1900", "0/1/2009",   "1/0/2009",  "00/00/0000",
          "1/13/2009",  "32/1/2009",  "257/1/2009", "1/257/2009", "1/1/10000", "1/1/65545",
          "",           "//",         "1/1",        "1/1/",       "/1/2009",   "1/1/2009/",
          "1/1/2009/1", "1-1-2009",   "1/1/-2009",  "a/1/2009",   "1 1/1/2009"})
        EXPECT_FALSE(IsDate(Text)) << Text;
}

}

}
