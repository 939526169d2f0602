#include "services/Platform.h"

#include "services/platform/InstanceLock.h"
#include "services/platform/Opening.h"
#include "services/platform/PrivateFolder.h"
#include "services/platform/SoundPlayer.h"
#include "services/platform/X11.h"

namespace vellarno {

namespace {

class OwnPlatform : public Platform
{
public:
    void Beep() override { forms::Beep(); }
    void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                const std::string& Title) override
    {
        forms::MsgBox(Prompt, Style, Title);
    }
    void PlaySound(const std::string& WaveImage) override { sounds.Play(WaveImage); }
    void OpenAddress(const std::string& Address) override { vellarno::OpenAddress(Address); }
    bool StartEntry(const std::string& Entry) override { return vellarno::StartEntry(Entry); }
    std::string PrivateFolder() override { return vellarno::PrivateFolder(); }
    bool Compositing() override { return vellarno::Compositing(); }
    bool BecomeOnlyInstance() override { return instance.Take(PrivateFolder()); }

private:
    SoundPlayer sounds;
    InstanceLock instance;
};

Platform* replacement = nullptr;

}

Platform& System()
{
    if (replacement) return *replacement;
    static OwnPlatform own;
    return own;
}

void SetPlatform(Platform* Other)
{
    replacement = Other;
}

}
