#pragma once

#include "tests/support/Person.h"

namespace vellarno::test {

/// What controls of a layout show and take.
struct LayoutRow
{
    const char* Names;
    const char* Shows;        ///< caption, text or picture: the same for all, or parted by bars
    const char* ToolTip = ""; ///< as the window opens
    int MaxLength = 0;        ///< of an entry field
};

/// Fails unless just these controls show or tell something, and each what its row says.
void ExpectLayout(const forms::Form& Form, const std::vector<LayoutRow>& Rows);

/// The names of the controls that the Tab key reaches, from the one with the focus on, once around.
std::string TabOrder(const Person& Before);

}
