#pragma once

#include <string_view>

namespace vellarno::test {

/// What holds of the text primitives for every text that can reach a field, whatever is in it.
/// @throws std::logic_error  naming the property that doesn't hold.
void CheckText(std::string_view Text);

/// The same of Format, for every pattern.
void CheckPattern(std::string_view Pattern);

}
