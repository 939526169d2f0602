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

/// A sound card that never answers: its settings are a pipe into which nobody writes.
class HangingCard
{
public:
    HangingCard()
    {
        mkfifo(settings.c_str(), S_IRUSR | S_IWUSR);
        setenv("ALSA_CONFIG_PATH", settings.c_str(), 1);
    }
    ~HangingCard()
    {
        close(writer); // lets go of whoever is caught
        unsetenv("ALSA_CONFIG_PATH");
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
    const Folder folder;
    const std::string settings = folder.Path / "settings";
    int writer = -1;
};

const std::string& Image()
{
    static const std::string image = forms::ReadResource(resources::Custom(202));
    return image;
}

TEST(SoundPlayer, AServiceThatHangsCostsTheCallerNothing)
{
    setenv("CANBERRA_DRIVER", "alsa", 1);
    HangingCard card;
    std::optional<SoundPlayer> player(std::in_place);
    EXPECT_LT(Took([&] { player->Play(Image()); }), 50ms);
    ASSERT_TRUE(card.HasCaughtSomeone());
    EXPECT_LT(Took([&] { player->Play(Image()); }), 50ms);
    EXPECT_LT(Took([&] { player.reset(); }), 500ms);
}

TEST(SoundPlayer, NeitherDoesOneThatIsAbsentOrUnused)
{
    setenv("CANBERRA_DRIVER", "absent", 1);
    std::optional<SoundPlayer> player(std::in_place);
    for (int i = 0; i < 3; ++i) EXPECT_LT(Took([&] { player->Play(Image()); }), 50ms);
    EXPECT_LT(Took([&] { player.reset(); }), 500ms);
    EXPECT_LT(Took([] { const SoundPlayer unused; }), 50ms);
}

}
}
