#pragma once

namespace vellarno::forms {

/// Makes pictures that act when clicked buttons to a screen reader, with a press action.
void SetUpAccessibility();

}
