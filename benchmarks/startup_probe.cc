// Starts one program and tells what an onlooker sees of its start.
//   startup_probe PROGRAM [ARGUMENT …]
// Prints: milliseconds to the mapped window, milliseconds to the painted window, proportional and
// resident memory in KiB once it has settled.
//
// Every drawing into the window is reported by the server; each time the window's pixels are taken
// together with the time. The window is painted from the first picture on that differs from the
// settled one in less than one pixel of a hundred: a caret or a running clock doesn't count, a
// missing part does. It works the same for every toolkit, and asks nothing of the programs.

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <optional>
#include <poll.h>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr std::chrono::seconds LongestStart{20};
/// A window that has not changed for so long has settled.
constexpr std::chrono::milliseconds Settling{1500};
/// Smaller windows are no main windows: toolkits open some that are never seen.
constexpr std::uint16_t SmallestSide = 64;
constexpr std::size_t PixelsPerDifference = 100;

struct Freed
{
    void operator()(void* Reply) const { std::free(Reply); }
};
template <class T>
using Reply = std::unique_ptr<T, Freed>;

template <class T>
Reply<T> Own(T* Answer)
{
    return Reply<T>(Answer);
}

struct Picture
{
    Clock::time_point Time;
    std::vector<std::uint32_t> Pixels;
};

bool Alike(const Picture& One, const Picture& Other)
{
    if (One.Pixels.size() != Other.Pixels.size()) return false;
    std::size_t different = 0;
    for (std::size_t i = 0; i < One.Pixels.size(); ++i)
        different += One.Pixels[i] != Other.Pixels[i];
    return different * PixelsPerDifference < One.Pixels.size();
}

class Onlooker
{
public:
    Onlooker() : display(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(display)) throw std::runtime_error("no display");
        root = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
        const auto* damage = xcb_get_extension_data(display, &xcb_damage_id);
        if (!damage || !damage->present) throw std::runtime_error("display tells no drawing");
        drawn = static_cast<std::uint8_t>(damage->first_event + XCB_DAMAGE_NOTIFY);
        Own(xcb_damage_query_version_reply(display, xcb_damage_query_version(display, 1, 1),
                                           nullptr));
        Listen(root->root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
        // What lies under the pointer might light up.
        xcb_warp_pointer(display, XCB_NONE, root->root, 0, 0, 0, 0,
                         static_cast<std::int16_t>(root->width_in_pixels - 1),
                         static_cast<std::int16_t>(root->height_in_pixels - 1));
        // The answer to a question tells that all before it was done.
        Own(xcb_get_input_focus_reply(display, xcb_get_input_focus(display), nullptr));
    }
    ~Onlooker() { xcb_disconnect(display); }
    Onlooker(const Onlooker&) = delete;
    Onlooker& operator=(const Onlooker&) = delete;

    /// Looks on until the window has settled.
    void Watch()
    {
        const auto end = Clock::now() + LongestStart;
        while (Clock::now() < end && !Settled()) {
            pollfd descriptor{xcb_get_file_descriptor(display), POLLIN, 0};
            xcb_flush(display);
            poll(&descriptor, 1, 50);
            while (auto event = Own(xcb_poll_for_event(display))) Hear(*event);
        }
        if (pictures.empty()) throw std::runtime_error("no window");
    }

    Clock::time_point Mapped() const { return *mapped; }

    Clock::time_point Painted() const
    {
        for (const auto& picture : pictures)
            if (Alike(picture, pictures.back())) return picture.Time;
        return pictures.back().Time;
    }

private:
    bool Settled() const { return mapped && Clock::now() - lastChange > Settling; }

    void Listen(xcb_window_t Window, std::uint32_t Events)
    {
        xcb_change_window_attributes(display, Window, XCB_CW_EVENT_MASK, &Events);
    }

    void Hear(const xcb_generic_event_t& Event)
    {
        const auto type = static_cast<std::uint8_t>(Event.response_type & 0x7F);
        if (type == XCB_CREATE_NOTIFY) {
            const auto& created = reinterpret_cast<const xcb_create_notify_event_t&>(Event);
            // Menus, tooltips and the manager's frames place themselves.
            if (!mapped && !created.override_redirect) Meet(created.window);
        } else if (type == XCB_MAP_NOTIFY) {
            const auto& shown = reinterpret_cast<const xcb_map_notify_event_t&>(Event);
            if (shown.event == shown.window) SeeMapped(shown.window);
        } else if (type == drawn) {
            const auto& area = reinterpret_cast<const xcb_damage_notify_event_t&>(Event);
            xcb_damage_subtract(display, area.damage, XCB_NONE, XCB_NONE);
            if (mapped && area.drawable == window) Take();
        }
    }

    /// A window of the program, perhaps shown already by the time it is heard of.
    void Meet(xcb_window_t Window)
    {
        Listen(Window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        xcb_damage_create(display, xcb_generate_id(display), Window,
                          XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
        const auto attributes = Own(xcb_get_window_attributes_reply(
            display, xcb_get_window_attributes(display, Window), nullptr));
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE) SeeMapped(Window);
    }

    /// Programs give their windows a class; the manager gives its frames none.
    bool HasClass(xcb_window_t Window)
    {
        const auto name = Own(xcb_get_property_reply(
            display, xcb_get_property(display, 0, Window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 0, 1),
            nullptr));
        return name && name->type == XCB_ATOM_STRING;
    }

    void SeeMapped(xcb_window_t Window)
    {
        if (mapped) return;
        const auto time = Clock::now();
        if (!HasClass(Window)) return;
        const auto size =
            Own(xcb_get_geometry_reply(display, xcb_get_geometry(display, Window), nullptr));
        if (!size || size->width < SmallestSide || size->height < SmallestSide) return;
        mapped = time;
        window = Window;
        Take();
    }

    void Take()
    {
        const auto size =
            Own(xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr));
        if (!size) return;
        const auto image =
            Own(xcb_get_image_reply(display,
                                    xcb_get_image(display, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                                  size->width, size->height, ~std::uint32_t{0}),
                                    nullptr));
        if (!image) return; // not yet wholly on the screen
        const auto* bytes = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
        const auto count =
            static_cast<std::size_t>(xcb_get_image_data_length(image.get())) / sizeof *bytes;
        Picture picture{Clock::now(), {bytes, bytes + count}};
        if (!pictures.empty() && Alike(picture, pictures.back())) return;
        lastChange = picture.Time;
        pictures.push_back(std::move(picture));
    }

    xcb_connection_t* display;
    xcb_screen_t* root = nullptr;
    std::uint8_t drawn = 0;
    xcb_window_t window = XCB_NONE;
    std::optional<Clock::time_point> mapped;
    Clock::time_point lastChange;
    std::vector<Picture> pictures; ///< each unlike the one before it
};

/// A started program; it ends with this object.
class Child
{
public:
    explicit Child(char** Command)
    {
        if (const int error = posix_spawnp(&id, Command[0], nullptr, nullptr, Command, environ))
            throw std::system_error(error, std::generic_category(), "not started");
    }
    ~Child()
    {
        kill(id, SIGTERM);
        for (int i = 0; i < 200; ++i) {
            if (waitpid(id, nullptr, WNOHANG) != 0) return;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        kill(id, SIGKILL);
        waitpid(id, nullptr, 0);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    /// KiB of the kind: "Pss" counts a page shared with others by its share, "Rss" wholly.
    long Memory(const std::string& Kind) const
    {
        std::ifstream account("/proc/" + std::to_string(id) + "/smaps_rollup");
        std::string word;
        long size = 0;
        while (account >> word)
            if (word == Kind + ':' && account >> size) return size;
        throw std::runtime_error("program has ended");
    }

private:
    pid_t id = 0; ///< of a program that runs: without one there is no such object
};

}

int main(int argc, char** argv)
{
    if (argc < 2) return 2;
    try {
        Onlooker onlooker;
        const auto start = Clock::now();
        const Child child(argv + 1);
        onlooker.Watch();
        std::printf("%.2f %.2f %ld %ld\n", Milliseconds(onlooker.Mapped() - start).count(),
                    Milliseconds(onlooker.Painted() - start).count(), child.Memory("Pss"),
                    child.Memory("Rss"));
        return 0;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", argv[1], failure.what());
        return 1;
    }
}
