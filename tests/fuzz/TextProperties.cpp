#include "tests/fuzz/TextProperties.h"

#include "engine/DateTime.h"
#include "engine/Text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <stdexcept>
#include <string>

namespace vellarno::test {

namespace {

void Require(bool Holds, const char* Property)
{
    if (!Holds) throw std::logic_error(Property);
}

std::string_view WithoutLeadingZeros(std::string_view Digits)
{
    return Digits.substr(std::min(Digits.find_first_not_of('0'), Digits.size()));
}

void CheckNumber(std::string_view Text)
{
    const auto integer = CInt(Text);
    const std::string_view digits = WithoutLeadingZeros(Text);
    const bool fits = digits.size() < 5 || (digits.size() == 5 && digits <= "32767");
    Require(integer.has_value() == (IsNumeric(Text) && fits),
            "CInt takes what is numeric and fits");
    if (!integer) return;
    Require(CStr(*integer) == (digits.empty() ? "0" : digits), "CInt keeps the value");
    Require(CDbl(Text) == static_cast<double>(*integer), "CDbl has the same value");
}

void CheckPadding(std::string_view Text)
{
    const std::string padded = Format(Text, "00");
    const auto value = CDbl(Text);
    if (!value) {
        Require(padded == Text, "Format leaves a text that is no number");
        return;
    }
    constexpr double exactlyHeld = 9007199254740992; // 2^53
    Require(IsNumeric(padded) && padded.size() >= 2, "two digits at least");
    Require(CDbl(padded) == value, "the value stays");
    if (*value < exactlyHeld)
        Require(WithoutLeadingZeros(padded) == WithoutLeadingZeros(Text), "the digits stay");
    std::string grouped = Format(Text, "0,0");
    std::erase(grouped, '.');
    Require(grouped == padded, "points between groups are all that \"0,0\" adds");
}

void CheckDate(std::string_view Text)
{
    const auto date = CDate(Text);
    Require(IsDate(Text) == date.has_value(), "a date is what CDate reads");
    if (!date) return;
    Require(*date >= FirstDate && *date <= LastDate && std::floor(*date) == *date, "a valid day");
    Require(CDate(Format(*date, "dd") + '/' + CStr(Month(*date)) + '/' + Format(*date, "yyyy")) ==
                date,
            "printed, it reads the same");
}

}

void CheckText(std::string_view Text)
{
    CheckNumber(Text);
    CheckPadding(Text);
    CheckDate(Text);
}

void CheckPattern(std::string_view Pattern)
{
    const std::size_t hash = std::hash<std::string_view>{}(Pattern);
    const auto days = static_cast<double>(hash % (LastDate - FirstDate + 1));
    const double moment = FirstDate + days + static_cast<double>(hash % 86400) / 86400;
    const std::string text = Format(moment, Pattern);
    if (Pattern.substr(0, 1) == "0") {
        const auto zeros = std::count(Pattern.begin(), Pattern.end(), '0');
        Require(std::count_if(text.begin(), text.end(),
                              [](char c) { return c >= '0' && c <= '9'; }) >= zeros,
                "a digit for each zero");
    } else if (Pattern.find_first_of("dmyhs") == std::string_view::npos) {
        Require(text == Pattern, "what names no part of a date is printed as it stands");
    }
}

}
