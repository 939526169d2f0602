#include "services/platform/X11.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QThread>
#include <QWidget>
#include <qguiapplication_platform.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace vellarno {

namespace {

/// Platforms without a display may have the interface, but no connection behind it.
xcb_connection_t* Connection()
{
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

/// A window manager that hangs must not keep the window off the screen.
constexpr int PatienceMilliseconds = 100;

xcb_atom_t Atom(xcb_connection_t* Display, std::string_view Name)
{
    const auto length = static_cast<std::uint16_t>(Name.size());
    auto* reply =
        xcb_intern_atom_reply(Display, xcb_intern_atom(Display, 0, length, Name.data()), nullptr);
    const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    std::free(reply);
    return atom;
}

std::vector<std::uint32_t> Property(xcb_connection_t* Display, xcb_window_t Window, xcb_atom_t Name)
{
    constexpr std::uint32_t MostValues = 1024;
    auto* reply = xcb_get_property_reply(
        Display,
        xcb_get_property(Display, 0, Window, Name, XCB_GET_PROPERTY_TYPE_ANY, 0, MostValues),
        nullptr);
    std::vector<std::uint32_t> values;
    if (reply && reply->format == 32) {
        const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply));
        values.assign(first, first + reply->value_len);
    }
    std::free(reply);
    return values;
}

/// The request of the Extended Window Manager Hints for windows that are not shown yet.
void RequestFrameExtents(xcb_connection_t* Display, xcb_window_t Root, xcb_window_t Window,
                         xcb_atom_t Request)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = Window;
    event.type = Request;
    xcb_send_event(Display, 0, Root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
}

}

bool OnX11()
{
    return Connection() != nullptr;
}

bool Compositing()
{
    xcb_connection_t* display = Connection();
    if (!display) return false;
    // Whoever composes the screen owns this selection (Extended Window Manager Hints).
    const auto selection = Atom(display, "_NET_WM_CM_S0");
    auto* reply = xcb_get_selection_owner_reply(
        display, xcb_get_selection_owner(display, selection), nullptr);
    const bool composed = reply && reply->owner != XCB_NONE;
    std::free(reply);
    return composed;
}

QMargins FrameMargins(QWidget& Window)
{
    xcb_connection_t* display = Connection();
    if (!display) return {};
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const xcb_atom_t request = Atom(display, "_NET_REQUEST_FRAME_EXTENTS");
    const auto served = Property(display, root, Atom(display, "_NET_SUPPORTED"));
    if (std::ranges::find(served, request) == served.end()) return {};

    const auto window = static_cast<xcb_window_t>(Window.winId());
    RequestFrameExtents(display, root, window, request);
    const xcb_atom_t answer = Atom(display, "_NET_FRAME_EXTENTS");
    auto extents = Property(display, window, answer);
    for (const QDeadlineTimer patience(PatienceMilliseconds);
         extents.size() != 4 && !patience.hasExpired();) {
        QThread::msleep(1);
        extents = Property(display, window, answer);
    }
    if (extents.size() != 4) return {};
    const auto pixels = [&](std::size_t Side) {
        return qRound(extents[Side] / Window.devicePixelRatioF());
    };
    return {pixels(0), pixels(2), pixels(1), pixels(3)}; // told as left, right, top, bottom
}

}
