#pragma once

#include "services/forms/Globals.h"

#include <string>

namespace vellarno {

/// By what the program reaches out of its process, but for the help page's file, the clipboard and
/// what windows ask of X11. A test puts a recorder in its place. Nothing here fails loudly: what
/// the machine can't do is left undone.
class Platform
{
public:
    virtual ~Platform() = default;

    virtual void Beep() = 0;
    virtual void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                        const std::string& Title) = 0;
    /// Starts a sound given as a WAV image and returns at once; it cuts off the one before.
    virtual void PlaySound(const std::string& WaveImage) = 0;
    /// Opens a file or an address in the application that the desktop has for it.
    virtual void OpenAddress(const std::string& Address) = 0;
    /// Starts a program of the desktop by the name of its entry; it then lives by itself.
    /// @return false if the entry or its program isn't there.
    virtual bool StartEntry(const std::string& Entry) = 0;
    /// A folder that only the user can enter, without a separator at its end, one in which no file
    /// can be, or nothing where the system has no temporary folder.
    virtual std::string PrivateFolder() = 0;
    virtual bool Compositing() = 0;
    /// True for one process of the user at a time; ends with the process, however it ends.
    virtual bool BecomeOnlyInstance() = 0;
};

/// The platform in use: the system's own, unless SetPlatform gave another.
Platform& System();

/// @param Other  what System() gives from now on; nullptr for the system's own.
void SetPlatform(Platform* Other);

}
