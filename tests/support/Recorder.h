#pragma once

#include "resources/Resources.h"
#include "services/Platform.h"

#include <functional>
#include <string>
#include <vector>

namespace vellarno::test {

/// Takes the platform's place for as long as it lives. Nothing leaves the process; what would
/// have left it can be looked up here.
class Recorder : public Platform
{
public:
    struct Message
    {
        std::string Prompt;
        forms::MessageStyle Style;
        std::string Title;
    };

    int Beeps = 0;
    std::vector<Message> Messages;
    std::vector<int> Sounds;          ///< ids of the resources; 0 for any other bytes
    std::vector<std::string> Opened;  ///< files and addresses
    std::vector<std::string> Started; ///< programs with their arguments, parted by blanks
    /// All of the above in order: "beep", "message PROMPT", "sound 202", "open …", "start …".
    std::vector<std::string> Log;

    std::string TempFolder;                                      ///< what PrivateFolder gives
    bool IsComposited = false;                                   ///< what Compositing gives
    bool OnlyInstance = true;                                    ///< what BecomeOnlyInstance gives
    bool CanOpen = true;                                         ///< what OpenAddress gives
    std::function<bool(const std::string& Program)> IsInstalled; ///< empty: every program is
    std::function<void()> DuringMessage; ///< runs while the message box would stand

    Recorder() { SetPlatform(this); }
    ~Recorder() override { SetPlatform(nullptr); }
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    void Beep() override
    {
        ++Beeps;
        Log.emplace_back("beep");
    }

    void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                const std::string& Title) override
    {
        Messages.push_back({Prompt, Style, Title});
        Log.push_back("message " + Prompt);
        if (DuringMessage) DuringMessage();
    }

    void PlaySound(const std::string& WaveImage) override
    {
        int id = 0;
        for (const int known : {201, 202})
            if (WaveImage == forms::ReadResource(resources::Custom(known))) id = known;
        Sounds.push_back(id);
        Log.push_back("sound " + std::to_string(id));
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
        std::string command = Program;
        for (const auto& argument : Arguments) command += ' ' + argument;
        Started.push_back(command);
        Log.push_back("start " + command);
        return true;
    }

    std::string PrivateFolder() override { return TempFolder; }
    bool Compositing() override { return IsComposited; }
    bool BecomeOnlyInstance() override { return OnlyInstance; }
};

}
