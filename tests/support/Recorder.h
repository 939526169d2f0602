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

    int Beeps = 0;
    std::vector<Message> Messages;
    std::vector<int> Sounds;          ///< ids of the resources; 0 for any other bytes
    std::vector<std::string> Opened;  ///< files and addresses
    std::vector<std::string> Started; ///< programs with their arguments, parted by blanks
    std::vector<std::string> Log; ///< all in order: "beep", "message PROMPT", "sound 202", "open …"

    std::string TempFolder;                                      ///< what PrivateFolder gives
    bool IsComposited = false;                                   ///< what Compositing gives
    bool CanOpen = true;                                         ///< what OpenAddress gives
    std::function<bool(const std::string& Program)> IsInstalled; ///< empty: every program is
    std::function<void()> DuringMessage; ///< runs while the message box would stand

    Recorder() { SetPlatform(this); }
    ~Recorder() override { SetPlatform(nullptr); }

    void Beep() override { Log.emplace_back("beep"), ++Beeps; }
    void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                const std::string& Title) override
    {
        Messages.push_back({Prompt, Title, Style});
        Log.push_back("message " + Prompt);
        if (DuringMessage) DuringMessage();
    }
    void PlaySound(const std::string& WaveImage) override
    {
        Sounds.push_back(0);
        for (const int id : {201, 202})
            if (WaveImage == forms::ReadResource(resources::Custom(id))) Sounds.back() = id;
        Log.push_back("sound " + std::to_string(Sounds.back()));
    }
    bool OpenAddress(const std::string& Address) override
    {
        Opened.push_back(Address);
        Log.push_back("open " + Address);
        return CanOpen;
    }
    bool StartProgram(const std::string& Program,
                      const std::vector<std::string>& Arguments) override
    {
        if (IsInstalled && !IsInstalled(Program)) return false;
        Started.push_back(Program);
        for (const auto& argument : Arguments) Started.back() += ' ' + argument;
        Log.push_back("start " + Started.back());
        return true;
    }
    std::string PrivateFolder() override { return TempFolder; }
    bool Compositing() override { return IsComposited; }
    bool BecomeOnlyInstance() override { return true; }
};

}
