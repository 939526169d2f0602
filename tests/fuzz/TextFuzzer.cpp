#include "engine/DateTime.h"
#include "engine/Text.h"

#include <algorithm>
#include <stdexcept>

using namespace vellarno;
using namespace std::string_literals;

static void Require(bool Holds, const char* Property)
{
    if (!Holds) throw std::logic_error(Property);
}

static std::string_view WithoutLeadingZeros(std::string_view Digits)
{
    return Digits.substr(std::min(Digits.find_first_not_of('0'), Digits.size()));
}

/// What holds of the text primitives for every text that can reach a field, whatever is in it.
static void Check(std::string_view Text)
{
    const auto digits = WithoutLeadingZeros(Text);
    const auto integer = CInt(Text);
    const bool fits = digits.size() < 5 || (digits.size() == 5 && digits <= "32767");
    Require(integer.has_value() == (IsNumeric(Text) && fits),
            "CInt takes what is numeric and fits");
    Require(!integer || CStr(*integer) == (digits.empty() ? "0" : digits), "it keeps the value");

    const std::string padded = Format(Text, "00");
    const auto value = CDbl(Text);
    Require(value ? IsNumeric(padded) && padded.size() >= 2 : padded == Text, "numbers are padded");
    Require(value.value_or(1e16) >= 1e15 || WithoutLeadingZeros(padded) == digits, "and kept");

    const auto date = CDate(Text);
    Require(IsDate(Text) == date.has_value(), "a date is what CDate reads");
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
        "1/|0001/01/2005|0,0|hh.mm.ss|yyyyy| dddd  dd mmm yyyy|.,;:|"s +
        std::string(400, '9'));
    for (std::string text; std::getline(texts, text, '|');) EXPECT_NO_THROW(Check(text)) << text;
}
#endif
