#pragma once

#include "services/forms/Form.h"

namespace vellarno {

/// Whether the desktop can make a window translucent: a compositor runs.
bool IsLayeredCapable();

/// Shows the form, fading it in over somewhat more than 738 ms, and returns when it is opaque.
/// Does nothing where windows can't be translucent: the form then comes up in the ordinary way.
/// Serves events meanwhile; a window that is closed during the fade is left alone.
void FadeInForm(forms::Form& Form);

}
