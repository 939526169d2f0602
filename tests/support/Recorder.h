#pragma once

#include "resources/Resources.h"
#include "services/Platform.h"

#include <utility>

namespace vellarno::test {

/// Takes the platform's place while it lives, and takes note of what would have left the process.
class Recorder : public Platform
{
public:
    std::string TempFolder;    ///< what PrivateFolder gives
    bool IsComposited = false; ///< what Compositing gives
    std::string OnlyEntry;     ///< of the desktop's programs, the one there is; empty: all are
    bool RealBoxes = false;    ///< message boxes stand until they are closed

    Recorder() { SetPlatform(this); }
    ~Recorder() override { SetPlatform(nullptr); }

    void Note(const std::string& What) { log += (log.empty() ? "" : ", ") + What; }
    /// What was noted since the last time, in order: "beep, sound 202, message 64 Vellarno: …"
    std::string TakeLog() { return std::exchange(log, ""); }
    /// A beep or a message has come that nobody took.
    bool Alarmed() const
    {
        return log.find("beep") != std::string::npos || log.find("message") != std::string::npos;
    }

    void Beep() override { Note("beep"); }
    void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                const std::string& Title) override
    {
        Note("message " + std::to_string(Style) + ' ' + Title + ": " + Prompt);
        if (RealBoxes) forms::MsgBox(Prompt, Style, Title);
    }
    void PlaySound(const std::string& WaveImage) override
    {
        for (const auto sound : {resources::Sound::Opening, resources::Sound::Click})
            if (WaveImage == forms::ReadResource(resources::Path(sound)))
                Note("sound " + std::to_string(static_cast<int>(sound)));
    }
    bool OpenAddress(const std::string& Address) override { return Note("open " + Address), true; }
    bool StartEntry(const std::string& Entry) override
    {
        if (!OnlyEntry.empty() && OnlyEntry != Entry) return false;
        return Note("start " + Entry), true;
    }
    std::string PrivateFolder() override { return TempFolder; }
    bool Compositing() override { return IsComposited; }
    bool BecomeOnlyInstance() override { return true; }

private:
    std::string log;
};

}
