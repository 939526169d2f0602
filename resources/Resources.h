#pragma once

#include <string>

namespace vellarno::resources {

/// The pointing hand over what can be pressed; each desktop draws its own.
inline constexpr int HandCursor = 101;

/// Icons by id: 201 the pin off, 202 the pin on.
inline std::string Icon(int Id)
{
    switch (Id) {
    case 201: return ":/pictures/pin-off.png";
    case 202: return ":/pictures/pin-on.png";
    default: return {};
    }
}

/// Data by id: 201 and 202 the sounds, 300 the help page.
inline std::string Custom(int Id)
{
    switch (Id) {
    case 201: return ":/sounds/201.wav";
    case 202: return ":/sounds/202.wav";
    case 300: return ":/HelpVellarno.htm";
    default: return {};
    }
}

}
