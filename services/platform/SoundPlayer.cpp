#include "services/platform/SoundPlayer.h"

#include <alsa/asoundlib.h>
#include <canberra.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace vellarno {

namespace {

constexpr std::uint32_t SoundId = 1;
/// How long the end of the program waits for a service that is at work.
constexpr std::chrono::milliseconds Patience{100};

/// The last resort of the service, the bare sound card, reports a missing one on the terminal.
void IgnoreReport(const char*, int, const char*, int, const char*, ...) {}

/// The desktop's sounds, or nothing where there are none. Never given back: a driver may still be
/// returning from a sound when the program ends.
ca_context* Connect()
{
    snd_lib_error_set_handler(&IgnoreReport);
    static ca_context* context = nullptr;
    if (ca_context_create(&context) != CA_SUCCESS) return nullptr;
    ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Vellarno", CA_PROP_APPLICATION_ID,
                            "vellarno", nullptr);
    return context;
}

/// The service reads sounds from files: the image stands in a file that is in memory alone.
void PlayImage(ca_context* Service, const std::string& Image)
{
    if (!Service) return;
    const int file = memfd_create("sound", MFD_CLOEXEC);
    if (file < 0) return;
    if (write(file, Image.data(), Image.size()) == static_cast<ssize_t>(Image.size())) {
        const std::string path = "/proc/self/fd/" + std::to_string(file);
        ca_context_cancel(Service, SoundId);
        ca_context_play(Service, SoundId, CA_PROP_MEDIA_FILENAME, path.c_str(), CA_PROP_MEDIA_ROLE,
                        "event", CA_PROP_CANBERRA_CACHE_CONTROL, "never", nullptr);
    }
    close(file);
}

}

struct SoundPlayer::Channel
{
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<std::string> waiting; ///< the sound to start next
    bool ending = false;
    bool ended = true;

    void Serve()
    {
        ca_context* const service = Connect();
        std::unique_lock lock(mutex);
        for (;;) {
            changed.wait(lock, [this] { return waiting || ending; });
            if (ending) break;
            const std::string image = std::move(*waiting);
            waiting.reset();
            lock.unlock();
            PlayImage(service, image);
            lock.lock();
        }
        ended = true;
        changed.notify_all();
    }
};

SoundPlayer::SoundPlayer() : channel(std::make_shared<Channel>()) {}

SoundPlayer::~SoundPlayer()
{
    std::unique_lock lock(channel->mutex);
    channel->ending = true;
    channel->changed.notify_all();
    channel->changed.wait_for(lock, Patience, [this] { return channel->ended; });
}

void SoundPlayer::Play(const std::string& WaveImage)
{
    const std::lock_guard lock(channel->mutex);
    channel->waiting = WaveImage;
    if (std::exchange(channel->ended, false)) // the first sound starts the thread
        std::thread([own = channel] { own->Serve(); }).detach();
    channel->changed.notify_all();
}

}
