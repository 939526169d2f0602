#pragma once

#include "tests/monkey/Windows.h"

#include <set>
#include <stdexcept>

namespace vellarno::test {

/// Something that must always hold doesn't.
struct Fault : std::logic_error
{
    using std::logic_error::logic_error;
};

inline void Require(bool Holds, const char* Rule)
{
    if (!Holds) throw Fault(Rule);
}

// What must hold between any two events, whatever came before. Each throws a Fault.

/// Results, fields, mode and calendar of the main window.
void CheckMainWindow(const MainWindow& Main);
/// Fields and captions of the sequential calculator.
void CheckSums(const SumsWindow& Sums);
/// Focus, balloons and pointer of all windows.
void CheckDesktop();

/// Follows the status strip, whose figures stay for the day of their last full update.
class StripWatch
{
public:
    /// @param Days  every day that the clock has shown since the last call.
    void Check(const MainWindow& Main, const std::set<int>& Days);
    /// To be called right after a tick.
    void CheckTick(const MainWindow& Main) const;

private:
    int day = 0;
    std::string shown; ///< the date panel at the last call
};

/// Puts a witness before both "=": it compares each sum with one worked out apart from the window.
void WatchSums(frmMiniCalc& Form);

/// All that stands in a window, for the report of a fault.
std::string Describe(const forms::Form& Form);

}
