#include "services/SystemSettings.h"

#include "services/App.h"
#include "services/Platform.h"

namespace vellarno {

namespace {

/// The desktops' own entries for date and time. The entry tells the command, which changes from one
/// version of a desktop to the next.
constexpr const char* Entries[] = {
    "gnome-datetime-panel",       // GNOME
    "kcm_clock",                  // KDE
    "cinnamon-settings-calendar", // Cinnamon
    "mate-time-admin",            // MATE
    "lxqt-admin-time",            // LXQt
    "time",                       // gnome-system-tools, for desktops without their own, as Xfce
};

}

void StartDateSettings()
{
    for (const char* entry : Entries)
        if (System().StartEntry(entry)) return;
    System().MsgBox("Nel sistema non c'è un programma per impostare la data e l'ora.",
                    forms::Information, App::Title);
}

}
