#pragma once

#include <string>

class QWidget;

namespace vellarno::forms {

/// Makes pictures that act when clicked buttons to a screen reader, with a press action.
void SetUpAccessibility();

/// Has a screen reader, if one listens, say the text as soon as events are served: for what changes
/// away from the focus. What is told until then is said in one go.
/// @param From  the window, or a control of it.
void Announce(const QWidget& From, const std::string& Text);

}
