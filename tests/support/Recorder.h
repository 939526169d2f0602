#pragma once

#include "resources/Resources.h"
#include "services/Platform.h"

#include <functional>

namespace vellarno::test {

/// Takes the platform's place while it lives, and takes note of what would have left the process.
class Recorder : public Platform
{
public:
    struct Message
    {
        std::string Prompt, Title;
        forms::MessageStyle Style;
    };

    std::vector<Message> Messages;
    std::vector<std::string> Opened; ///< files and addresses
    /// All in order, with a comma behind each: beep, message 64 TITLE: PROMPT, sound 202, start …
    std::string Log;

    std::string TempFolder;                                      ///< what PrivateFolder gives
    bool IsComposited = false;                                   ///< what Compositing gives
    bool CanOpen = true;                                         ///< what OpenAddress gives
    std::function<bool(const std::string& Program)> IsInstalled; ///< empty: every program is
    std::function<void()> DuringMessage; ///< runs while the message box would stand

    Recorder() { SetPlatform(this); }
    ~Recorder() override { SetPlatform(nullptr); }

    void Beep() override { Log += "beep, "; }
    void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                const std::string& Title) override
    {
        Messages.push_back({Prompt, Title, Style});
        Log += "message " + std::to_string(Style) + ' ' + Title + ": " + Prompt + ", ";
        if (DuringMessage) DuringMessage();
    }
    void PlaySound(const std::string& WaveImage) override
    {
        for (const int id : {201, 202})
            if (WaveImage == forms::ReadResource(resources::Custom(id)))
                Log += "sound " + std::to_string(id) + ", ";
    }
    bool OpenAddress(const std::string& Address) override
    {
        Opened.push_back(Address);
        return CanOpen;
    }
    bool StartProgram(const std::string& Program,
                      const std::vector<std::string>& Arguments) override
    {
        if (IsInstalled && !IsInstalled(Program)) return false;
        Log += "start " + Program;
        for (const auto& argument : Arguments) Log += ' ' + argument;
        Log += ", ";
        return true;
    }
    std::string PrivateFolder() override { return TempFolder; }
    bool Compositing() override { return IsComposited; }
    bool BecomeOnlyInstance() override { return true; }
};

}
