#pragma once

namespace vellarno::App {

/// The name that titles and messages show.
inline constexpr const char* Title = "Vellarno";

/// The three numbers of the version, as the build gives them.
inline constexpr int Major = VELLARNO_VERSION_MAJOR;
inline constexpr int Minor = VELLARNO_VERSION_MINOR;
inline constexpr int Revision = VELLARNO_VERSION_PATCH;

}
