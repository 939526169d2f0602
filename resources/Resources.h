#pragma once

#include <stdexcept>
#include <string>

namespace vellarno::resources {

inline constexpr const char* HelpPage = ":/HelpVellarno.htm";

/// Of the calculator that opens, and of an option or check box.
enum class Sound { Opening = 201, Click = 202 };

inline std::string Path(Sound Id)
{
    switch (Id) {
    case Sound::Opening: return ":/sounds/201.wav";
    case Sound::Click: return ":/sounds/202.wav";
    }
    throw std::logic_error("no such sound");
}

enum class Pin { Off, On };

inline std::string Path(Pin Id)
{
    switch (Id) {
    case Pin::Off: return ":/pictures/pin-off.png";
    case Pin::On: return ":/pictures/pin-on.png";
    }
    throw std::logic_error("no such icon");
}

}
