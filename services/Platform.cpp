#include "services/Platform.h"

#include "services/InstanceLock.h"
#include "services/PrivateFolder.h"
#include "services/SoundPlayer.h"

namespace vellarno {

namespace {

class Desktop : public Platform
{
public:
    void Beep() override { forms::Beep(); }
    void MsgBox(const std::string& Prompt, forms::MessageStyle Style,
                const std::string& Title) override
    {
        forms::MsgBox(Prompt, Style, Title);
    }
    void PlaySound(const std::string& WaveImage) override { sounds.Play(WaveImage); }
    bool OpenAddress(const std::string& Address) override { return forms::OpenAddress(Address); }
    bool StartEntry(const std::string& Entry) override { return forms::StartEntry(Entry); }
    std::string PrivateFolder() override { return vellarno::PrivateFolder(); }
    bool Compositing() override { return forms::Compositing(); }
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
    static Desktop desktop;
    return desktop;
}

void SetPlatform(Platform* Other)
{
    replacement = Other;
}

}
