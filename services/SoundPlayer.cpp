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

/// The last resort of the service, the bare sound card, reports a missing one on the terminal.
void IgnoreReport(const char*, int, const char*, int, const char*, ...) {}

/// A library that waits on the disk until it is wanted, and then stays. Its functions are null
/// where it is missing.
class Library
{
public:
    explicit Library(const char* Name) : handle(dlopen(Name, RTLD_LAZY)) {}
    template <class Function>
    void Find(Function& Found, const char* Symbol) const
    {
        Found = reinterpret_cast<Function>(handle ? dlsym(handle, Symbol) : nullptr);
    }

private:
    void* handle;
};

/// The desktop's sounds. Loaded with the first one: a start without sound is the shorter for it.
struct SoundService
{
    decltype(&ca_context_create) Create;
    decltype(&ca_context_change_props) Describe;
    decltype(&ca_context_cancel) Cancel;
    decltype(&ca_context_play) Play;
    decltype(&ca_context_destroy) Destroy;
    ca_context* Context = nullptr;

    SoundService()
    {
        int (*setHandler)(decltype(&IgnoreReport)) = nullptr;
        Library("libasound.so.2").Find(setHandler, "snd_lib_error_set_handler");
        if (setHandler) setHandler(&IgnoreReport);
        const Library library("libcanberra.so.0");
        library.Find(Create, "ca_context_create");
        library.Find(Describe, "ca_context_change_props");
        library.Find(Cancel, "ca_context_cancel");
        library.Find(Play, "ca_context_play");
        library.Find(Destroy, "ca_context_destroy");
        if (!Create || !Describe || !Cancel || !Play || !Destroy || Create(&Context) != CA_SUCCESS)
            Context = nullptr;
        else
            Describe(Context, CA_PROP_APPLICATION_NAME, "Vellarno", CA_PROP_APPLICATION_ID,
                     "vellarno", nullptr);
    }
    ~SoundService()
    {
        if (Context) Destroy(Context);
    }
    SoundService(const SoundService&) = delete;
    SoundService& operator=(const SoundService&) = delete;
};

/// The service reads sounds from files: the image stands in a file that is in memory alone.
void PlayImage(const SoundService& Service, const std::string& Image)
{
    if (!Service.Context) return;
    const int file = memfd_create("sound", MFD_CLOEXEC);
    if (file < 0) return;
    if (write(file, Image.data(), Image.size()) == static_cast<ssize_t>(Image.size())) {
        const std::string path = "/proc/self/fd/" + std::to_string(file);
        Service.Cancel(Service.Context, SoundId);
        Service.Play(Service.Context, SoundId, CA_PROP_MEDIA_FILENAME, path.c_str(),
                     CA_PROP_MEDIA_ROLE, "event", CA_PROP_CANBERRA_CACHE_CONTROL, "never", nullptr);
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
        std::optional<SoundService> service(std::in_place);
        std::unique_lock lock(mutex);
        for (;;) {
            changed.wait(lock, [this] { return waiting || ending; });
            if (ending) break;
            const std::string image = std::move(*waiting);
            waiting.reset();
            lock.unlock();
            PlayImage(*service, image);
            lock.lock();
        }
        lock.unlock();
        service.reset();
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
