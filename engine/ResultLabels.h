#pragma once

#include <string>

namespace vellarno {

/// What the calculators need of the window: its result labels and the mouse pointer.
class ResultLabels
{
public:
    /// What has elapsed, as the labels that show it are numbered.
    enum Elapsed { Years, Months, Days, Hours, Minutes, Seconds, ElapsedCount };

    /// The totals, as the labels that show them are numbered.
    enum Total {
        TotalDays,
        TotalWeeks,
        WorkingDays,
        Saturdays,
        Sundays,
        Holidays,
        TotalHours,
        TotalMinutes,
        TotalSeconds,
        TotalCount
    };

    virtual void SetDati(Elapsed Which, const std::string& Caption) = 0;
    virtual void SetTotali(Total Which, const std::string& Caption) = 0;
    virtual void SetHourglass(bool Shown) = 0;

protected:
    ~ResultLabels() = default;
};

}
