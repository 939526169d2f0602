#include "engine/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace vellarno {

namespace {

constexpr std::array<std::string_view, 7> WeekdayNames{
    "domenica", "lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato"};

constexpr std::array<std::string_view, 12> MonthNames{
    "gennaio", "febbraio", "marzo",     "aprile",  "maggio",   "giugno",
    "luglio",  "agosto",   "settembre", "ottobre", "novembre", "dicembre"};

template <typename T>
std::optional<T> ParseDigits(std::string_view Text)
{
    if (!IsNumeric(Text)) return std::nullopt;
    T number{};
    const auto parsed = std::from_chars(Text.data(), Text.data() + Text.size(), number);
    if (parsed.ec != std::errc{}) return std::nullopt;
    return number;
}

std::string_view WithoutBlanks(std::string_view Text)
{
    const auto first = std::min(Text.find_first_not_of(' '), Text.size());
    return Text.substr(first, Text.find_last_not_of(' ') + 1 - first);
}

/// The number before the next separator or the end; takes both off the text.
std::optional<std::int16_t> TakeNumber(std::string_view& Text)
{
    const auto length = std::min(Text.find('/'), Text.size());
    const auto number = CInt(WithoutBlanks(Text.substr(0, length)));
    Text.remove_prefix(std::min(length + 1, Text.size()));
    return number;
}

std::string Digits(double Value, std::size_t Least, bool Grouped)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 1> buffer{};
    const double whole = std::round(std::abs(Value));
    char* const end =
        std::to_chars(buffer.begin(), buffer.end(), whole, std::chars_format::fixed, 0).ptr;
    std::string text(buffer.data(), end);
    if (text.size() < Least) text.insert(0, Least - text.size(), '0');
    for (std::size_t right = 3; Grouped && right < text.size(); right += 4)
        text.insert(text.size() - right, 1, '.');
    if (Value < 0 && whole > 0) text.insert(0, 1, '-');
    return text;
}

std::string TwoDigits(int Number)
{
    return Digits(Number, 2, false);
}

struct DateField
{
    std::string_view Name;
    std::string (*Print)(DateValue x);
};

std::string PrintWeekday(DateValue x)
{
    return std::string(WeekdayNames.at(static_cast<std::size_t>(Weekday(x, Sunday) - Sunday)));
}

std::string PrintMonth(DateValue x)
{
    return std::string(MonthNames.at(static_cast<std::size_t>(Month(x) - 1)));
}

/// A longer name stands before the shorter one that it begins with.
constexpr std::array<DateField, 10> DateFields{{
    {"dddd", PrintWeekday},
    {"dd", [](DateValue x) { return TwoDigits(Day(x)); }},
    {"d", [](DateValue x) { return CStr(Day(x)); }},
    {"mmmm", PrintMonth},
    {"mmm", [](DateValue x) { return PrintMonth(x).substr(0, 3); }},
    {"mm", [](DateValue x) { return TwoDigits(Minute(x)); }},
    {"yyyy", [](DateValue x) { return Digits(Year(x), 4, false); }},
    {"yy", [](DateValue x) { return TwoDigits(Year(x) % 100); }},
    {"hh", [](DateValue x) { return TwoDigits(Hour(x)); }},
    {"ss", [](DateValue x) { return TwoDigits(Second(x)); }},
}};

std::string FormatDate(DateValue Value, std::string_view Pattern)
{
    std::string text;
    while (!Pattern.empty()) {
        const auto* const field =
            std::find_if(DateFields.begin(), DateFields.end(), [&](const DateField& Each) {
                return Pattern.substr(0, Each.Name.size()) == Each.Name;
            });
        const bool found = field != DateFields.end();
        text += found ? field->Print(Value) : std::string(1, Pattern.front());
        Pattern.remove_prefix(found ? field->Name.size() : 1);
    }
    return text;
}

}

bool IsNumeric(std::string_view Text)
{
    return !Text.empty() && Text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<std::int16_t> CInt(std::string_view Text)
{
    return ParseDigits<std::int16_t>(Text);
}

std::optional<double> CDbl(std::string_view Text)
{
    return ParseDigits<double>(Text);
}

std::string CStr(int Number)
{
    return std::to_string(Number);
}

int CLng(double Number)
{
    return static_cast<int>(std::nearbyint(Number));
}

bool IsDate(std::string_view Text)
{
    return CDate(Text).has_value();
}

std::optional<DayNumber> CDate(std::string_view Text)
{
    const auto separators = std::count(Text.begin(), Text.end(), '/');
    const auto giorno = TakeNumber(Text);
    const auto mese = TakeNumber(Text);
    const auto anno = TakeNumber(Text);
    if (separators != 2 || !giorno || !mese || !anno || *anno > 9999) return std::nullopt;

    // A day that the calendar lacks is one that DateSerial carries over.
    const DayNumber result = DateSerial(*anno, *mese, *giorno);
    if (Day(result) != *giorno || Month(result) != *mese) return std::nullopt;
    return result;
}

std::string Format(double Value, std::string_view Pattern)
{
    if (Pattern.substr(0, 1) != "0") return FormatDate(Value, Pattern);

    const auto zeros = static_cast<std::size_t>(std::count(Pattern.begin(), Pattern.end(), '0'));
    return Digits(Value, zeros, Pattern.find(',') != std::string_view::npos);
}

std::string Format(std::string_view Text, std::string_view Pattern)
{
    const auto value = CDbl(Text);
    return value ? Format(*value, Pattern) : std::string(Text);
}

std::string WeekdayText(int Number)
{
    if (Number < Sunday || Number > Saturday) return "";
    std::string name(WeekdayNames[static_cast<std::size_t>(Number - Sunday)]);
    name.front() = static_cast<char>(name.front() - 'a' + 'A');
    return name;
}

}
