#pragma once

/// Where the about box leads. Whoever packages the program puts the project's own addresses here.
namespace vellarno::endpoints {

inline constexpr const char* WebSite = "https://vellarno.example.org/";
/// The site as its banner shows it.
inline constexpr const char* WebSiteName = "vellarno.example.org";
inline constexpr const char* Mail = "vellarno@example.org";

}
