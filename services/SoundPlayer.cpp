#include "services/SoundPlayer.h"

#include <canberra.h>

#include <chrono>
#include <condition_variable>
#include <dlfcn.h>
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

void IgnoreReport(const char*, int, const char*, int, const char*, ...) {}

/// The last resort of the service, the bare sound card, reports a missing one on the terminal.
void QuietenSoundCard()
{
    using SetHandler = int (*)(decltype(&IgnoreReport));
    void* library = dlopen("libasound.so.2", RTLD_LAZY); // stays loaded for the service
    void* setHandler = library ? dlsym(library, "snd_lib_error_set_handler") : nullptr;
    if (setHandler) reinterpret_cast<SetHandler>(setHandler)(&IgnoreReport);
}

/// The service reads sounds from files: the image stands in a file that is in memory alone.
void PlayImage(ca_context* Context, const std::string& Image)
{
    const int file = memfd_create("sound", MFD_CLOEXEC);
    if (file < 0) return;
    if (write(file, Image.data(), Image.size()) == static_cast<ssize_t>(Image.size())) {
        const std::string path = "/proc/self/fd/" + std::to_string(file);
        ca_context_cancel(Context, SoundId);
        ca_context_play(Context, SoundId, CA_PROP_MEDIA_FILENAME, path.c_str(), CA_PROP_MEDIA_ROLE,
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
        QuietenSoundCard();
        ca_context* context = nullptr;
        const bool usable = ca_context_create(&context) == CA_SUCCESS;
        if (usable)
            ca_context_change_props(context, CA_PROP_APPLICATION_NAME, "Vellarno",
                                    CA_PROP_APPLICATION_ID, "vellarno", nullptr);
        std::unique_lock lock(mutex);
        for (;;) {
            changed.wait(lock, [this] { return waiting || ending; });
            if (ending) break;
            const std::string image = std::move(*waiting);
            waiting.reset();
            lock.unlock();
            if (usable) PlayImage(context, image);
            lock.lock();
        }
        lock.unlock();
        if (usable) ca_context_destroy(context);
        lock.lock();
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
