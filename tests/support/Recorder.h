#pragma once

#include "resources/Resources.h"
#include "services/Platform.h"

namespace vellarno::test {

/// Takes the platform's place while it lives, and takes note of what would have left the process.
class Recorder : public Platform
{
public:
    /// In order, with a comma behind each: beep, message 64 TITLE: PROMPT, sound 202, start …,
    /// open ADDRESS
    std::string Log;

    std::string TempFolder;    ///< what PrivateFolder gives
    bool IsComposited = false; ///< what Compositing gives
    std::string OnlyProgram;   ///< the one that is installed; empty: every program is

    Recorder() { SetPlatform(this); }
    ~Recorder() override { SetPlatform(nullptr); }

    void Beep() override { Log += "beep, "; }
    void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                const std::string& Title) override
    {
        Log += "message " + std::to_string(Style) + ' ' + Title + ": " + Prompt + ", ";
    }
    void PlaySound(const std::string& WaveImage) override
    {
        for (const int id : {201, 202})
            if (WaveImage == forms::ReadResource(resources::Custom(id)))
                Log += "sound " + std::to_string(id) + ", ";
    }
    bool OpenAddress(const std::string& Address) override
    {
        Log += "open " + Address + ", ";
        return true;
    }
    bool StartProgram(const std::string& Program,
                      const std::vector<std::string>& Arguments) override
    {
        if (!OnlyProgram.empty() && OnlyProgram != Program) return false;
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
