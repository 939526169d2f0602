#pragma once

#include "engine/Clock.h"
#include "resources/Resources.h"
#include "services/GenericBas.h"
#include "services/Platform.h"

#include <QTemporaryDir>
#include <chrono>
#include <gtest/gtest.h>
#include <utility>

namespace vellarno::test {

using namespace vellarno;
using namespace std::chrono_literals;
using std::chrono::sys_days;

/// What surrounds a window in a test: a platform that takes note of what would leave the process, a
/// folder of its own, and a clock that stands at 14:05:09 on Sunday 22/11/2026. A beep or a message
/// that the test did not take from the log is a fault.
class World : public Platform
{
public:
    const QTemporaryDir folder; ///< the private one
    bool IsComposited = false;
    std::string OnlyEntry;  ///< of the desktop's programs, the one there is; empty: all are
    bool RealBoxes = false; ///< message boxes stand until they are closed

    World()
    {
        SetPlatform(this);
        StopClock(sys_days(2026y / 11 / 22) + 14h + 5min + 9s);
    }
    ~World() override
    {
        for (const char* alarm : {"beep", "message"}) EXPECT_EQ(log.find(alarm), log.npos) << log;
        SetPlatform(nullptr);
        SetClock(nullptr);
        OnTopFlag = false;
    }

    void StopClock(std::chrono::sys_seconds At)
    {
        using Days = std::chrono::duration<double, std::chrono::days::period>;
        SetClock([now = Days(At - sys_days(1899y / 12 / 30)).count()] { return now; });
    }
    bool Note(const std::string& What)
    {
        log += (log.empty() ? "" : ", ") + What;
        return true;
    }
    /// What was noted since the last time, in order: "beep, sound 202, message 64 Vellarno: …"
    std::string TakeLog() { return std::exchange(log, ""); }

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
    void OpenAddress(const std::string& Address) override { Note("open " + Address); }
    bool StartEntry(const std::string& Entry) override
    {
        return (OnlyEntry.empty() || OnlyEntry == Entry) && Note("start " + Entry);
    }
    std::string PrivateFolder() override { return folder.path().toStdString(); }
    bool Compositing() override { return IsComposited; }
    bool BecomeOnlyInstance() override { return true; }

private:
    std::string log;
};

}
