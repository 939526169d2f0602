#include "services/SystemSettings.h"

#include "services/Platform.h"

#include <string>
#include <vector>

namespace vellarno {

namespace {

struct SettingsProgram
{
    const char* Program;
    std::vector<std::string> Arguments;
};

const std::vector<SettingsProgram>& KnownPrograms()
{
    static const std::vector<SettingsProgram> programs = {
#ifdef _WIN32
        {"rundll32.exe", {"shell32.dll,Control_RunDLL", "timedate.cpl"}},
#else
        {"gnome-control-center", {"datetime"}}, // GNOME
        {"systemsettings", {"kcm_clock"}},      // KDE
        {"systemsettings5", {"kcm_clock"}},
        {"kcmshell5", {"clock"}},
        {"cinnamon-settings", {"calendar"}}, // Cinnamon
        {"mate-time-admin", {}},             // MATE
        {"time-admin", {}},                  // Xfce
        {"lxqt-admin-time", {}},             // LXQt
#endif
    };
    return programs;
}

}

void StartDateSettings()
{
    for (const auto& [program, arguments] : KnownPrograms())
        if (System().StartProgram(program, arguments)) return;
}

}
