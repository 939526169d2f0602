#pragma once

#include <string>

namespace vellarno {

/// What the calculators need of the window: its result labels and the mouse pointer.
class ResultLabels
{
public:
    /// Elapsed years, months, days, hours, minutes, seconds: Index 0 to 5.
    virtual void SetDati(int Index, const std::string& Caption) = 0;

    /// Totals: days, weeks, working days, Saturdays, Sundays, holidays, hours, minutes, seconds:
    /// Index 0 to 8.
    virtual void SetTotali(int Index, const std::string& Caption) = 0;

    virtual void SetHourglass(bool Shown) = 0;

protected:
    ~ResultLabels() = default;
};

}
