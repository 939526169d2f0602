#include "tests/support/Folder.h"

#include "resources/Resources.h"
#include "services/SoundPlayer.h"
#include "services/forms/Desktop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace vellarno::test {
namespace {

using namespace std::chrono_literals;

template <class Work>
auto Took(const Work& Doing)
{
    const auto start = std::chrono::steady_clock::now();
    Doing();
    return std::chrono::steady_clock::now() - start;
}

struct Variable
{
    const char* Name;

    Variable(const char* Called, const std::string& Value) : Name(Called)
    {
        setenv(Name, Value.c_str(), 1);
    }
    ~Variable() { unsetenv(Name); }
};

/// A sound card that never answers: its settings are a pipe into which nobody writes.
class HangingCard
{
public:
    ~HangingCard()
    {
        if (writer >= 0) close(writer); // lets go of whoever is caught
    }

    /// Waits until the player hangs.
    bool HasCaughtSomeone()
    {
        for (int tries = 0; tries < 200 && writer < 0; ++tries) {
            std::this_thread::sleep_for(10ms);
            writer = open(settings.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        }
        return writer >= 0;
    }

private:
    std::string MakePipe() const
    {
        const std::string path = folder.Path / "settings";
        mkfifo(path.c_str(), S_IRUSR | S_IWUSR);
        return path;
    }

    const Folder folder;
    const std::string settings = MakePipe();
    const Variable use{"ALSA_CONFIG_PATH", settings};
    int writer = -1;
};

const std::string& Image()
{
    static const std::string image = forms::ReadResource(resources::Custom(202));
    return image;
}

TEST(SoundPlayer, AServiceThatHangsCostsTheCallerNothing)
{
    const Variable driver("CANBERRA_DRIVER", "alsa");
    HangingCard card;
    std::optional<SoundPlayer> player(std::in_place);
    EXPECT_LT(Took([&] { player->Play(Image()); }), 50ms);
    ASSERT_TRUE(card.HasCaughtSomeone());
    EXPECT_LT(Took([&] { player->Play(Image()); }), 50ms);
    EXPECT_LT(Took([&] { player.reset(); }), 500ms);
}

TEST(SoundPlayer, NeitherDoesOneThatIsAbsentOrUnused)
{
    for (const char* name : {"null", "absent"}) {
        const Variable driver("CANBERRA_DRIVER", name);
        std::optional<SoundPlayer> player(std::in_place);
        for (int i = 0; i < 3; ++i) EXPECT_LT(Took([&] { player->Play(Image()); }), 50ms) << name;
        EXPECT_LT(Took([&] { player.reset(); }), 500ms) << name;
    }
    EXPECT_LT(Took([] { const SoundPlayer unused; }), 50ms);
}

}
}
