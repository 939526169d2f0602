#pragma once

#include "tests/support/Person.h"

#include <span>

namespace vellarno::test {

/// What controls of a layout show and take.
struct LayoutRow
{
    const char* Names;
    const char* Shows;        ///< caption, text or picture: the same for all, or parted by bars
    const char* ToolTip = ""; ///< as the window opens, or its beginning
    int MaxLength = 0;        ///< of an entry field
};

/// Fails unless just these controls show or tell something, and each what its row says, without
/// lying over another, and the mouse is a hand over so many.
void ExpectLayout(const forms::Form& Form, int Hands, std::span<const LayoutRow> Rows);

/// The names of the controls that the Tab key reaches, from the one with the focus on, once around.
std::string TabOrder(const Person& Before);

}
