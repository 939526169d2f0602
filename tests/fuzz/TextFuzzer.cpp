#include "engine/DateTime.h"
#include "engine/Text.h"

#include <stdexcept>

using namespace vellarno;
using namespace std::string_literals;

static void Require(bool Holds, const char* Property)
{
    if (!Holds) throw std::logic_error(Property);
}

/// What holds of the text primitives for every text that can reach a field, whatever is in it.
static void Check(const std::string& Text)
{
    const auto value = CDbl(Text);
    const auto integer = CInt(Text);
    Require(!value || IsNumeric(Text), "a number is numeric");
    Require(integer.has_value() == (value.value_or(1e9) <= 32767), "CInt takes what fits");
    Require(!integer || *integer == std::stoi(Text), "it keeps the value");

    const std::string padded = Format(Text, "00");
    Require(value ? IsNumeric(padded) && padded.size() >= 2 : padded == Text, "numbers are padded");
    Require(!value || std::stod(padded) == std::stod(Text), "and kept");

    const auto date = CDate(Text);
    const double moment = date.value_or(0.75);
    const auto printed =
        CStr(Day(moment)) + '/' + CStr(Month(moment)) + '/' + Format(moment, "yyyy");
    Require(!date || (*date >= FirstDate && *date <= LastDate && CDate(printed) == date),
            "printed, it reads the same");
    Format(moment, Text); // whatever pattern it is
}

#ifdef FUZZING
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    Check(std::string(Data, Data + Size));
    return 0;
}
#else
#include <gtest/gtest.h>
#include <sstream>

TEST(Fuzz, KeptTextsKeepTheProperties)
{
    std::istringstream texts(
        "|0|000|7|1234567|32767|32768|0032767|9007199254740993|-1|1,5|0x1f| 7|１２|12\xff|1\0002|"
        "29/02/2008|29/02/2009|1/1/29|1/1/30|1/1/100|31/12/9999|1/1/10000|0/1/9| 1 / 1/ 2005 |///|"
        "1/|0001/01/2005|0,0|yyyyy| dddd  dd mmm yyyy|"s +
        std::string(400, '9'));
    for (std::string text; std::getline(texts, text, '|');) EXPECT_NO_THROW(Check(text)) << text;
}
#endif
