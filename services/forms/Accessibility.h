#pragma once

#include <string>

namespace vellarno::forms {

class Form;

/// Makes pictures that act when clicked buttons to a screen reader, with a press action.
void SetUpAccessibility();

/// Has a screen reader, if one listens, say the text at once: for what changes away from the focus.
void Announce(Form& Window, const std::string& Text);

}
