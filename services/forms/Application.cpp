#include "services/forms/Application.h"

#include "services/forms/Accessibility.h"
#include "services/forms/FontsAhead.h"
#include "services/forms/Italian.h"
#include "services/forms/Look.h"

#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace vellarno::forms {

namespace {

int signalPipe[2] = {-1, -1};

/// Only what a signal handler may do: the events of the windows hear of it through the pipe.
void NoteSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = write(signalPipe[1], &byte, 1);
}

/// Where the session offers both, X11: on Wayland a program can neither pin nor place its windows.
/// Given as an argument, since the environment is for the programs that this one starts as well.
class Arguments
{
public:
    Arguments(int Length, char** Given) : all(Given, Given + Length)
    {
        if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return;
        // Wayland is found in the session's folder; its library tells the terminal in English where
        // there is none.
        const bool session = qgetenv("XDG_RUNTIME_DIR").startsWith('/');
        static char option[] = "-platform", both[] = "xcb;wayland", x11[] = "xcb";
        all.insert(all.begin() + 1, {option, session ? both : x11}); // the user's own come later
        count = static_cast<int>(all.size());
    }

    int& Count() { return count; }
    char** Values() { return all.data(); }

private:
    std::vector<char*> all;
    int count = static_cast<int>(all.size());
};

QtMessageHandler toolkitMessages = nullptr;

/// What the toolkit tells the terminal in English, and is no matter for a user: that a session has
/// no folder of its own, and a language no table of composed characters.
bool IsHarmless(const QString& Message)
{
    return Message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) ||
           Message.contains(QLatin1String("compose table"));
}

/// Stands in while the toolkit looks for a display: it complains of each kind in turn, also where
/// the next one is there, and aborts after the last. A plugin that can't be loaded is no missing
/// screen, and a Wayland session may lack one: then the toolkit's own word follows.
void TellNoDisplay(QtMsgType Type, const QMessageLogContext&, const QString& Message)
{
    static bool unreachable = false;
    unreachable = unreachable || Message.contains(QLatin1String("connect to display"));
    if (Type != QtFatalMsg) return;
    std::fputs("Impossibile avviare il programma: nessuno schermo raggiungibile.\n", stderr);
    if (!unreachable || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        std::fprintf(stderr, "%s\n", qPrintable(Message));
    std::_Exit(EXIT_FAILURE);
}

/// The toolkit ends the program when the display is gone, and says so in English.
void TellTerminal(QtMsgType Type, const QMessageLogContext& Context, const QString& Message)
{
    if (Message.contains(QLatin1String("connection broke")))
        std::fputs("Lo schermo non risponde più: il programma termina.\n", stderr);
    else if (!IsHarmless(Message))
        toolkitMessages(Type, Context, Message);
}

}

struct Application::Parts
{
    Parts(int Count, char** Given)
        : arguments(Count, Given), application(arguments.Count(), arguments.Values())
    {
        fonts.ListThem();
    }
    ~Parts() { fonts.Wait(); }

    Arguments arguments;
    FontsAhead fonts;
    QApplication application;
    Italian italian;
    std::unique_ptr<QSocketNotifier> signals;
    std::function<void()> end;
};

Application::Application(int ArgumentCount, char** Given)
{
    toolkitMessages = qInstallMessageHandler(TellNoDisplay);
    parts = std::make_unique<Parts>(ArgumentCount, Given);
    qInstallMessageHandler(TellTerminal);
    QApplication::setApplicationName(QStringLiteral("vellarno"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("vellarno"));
    QApplication::setQuitOnLastWindowClosed(false);
    SetUpLook();
    SetUpAccessibility();
    QApplication::installTranslator(&parts->italian);
}

Application::~Application() = default;

int Application::Run()
{
    return QApplication::exec();
}

void Application::Quit()
{
    QApplication::quit();
}

void Application::OnEndRequest(std::function<void()> Handler)
{
    parts->end = std::move(Handler);
    // The session asks first and may be called off; when it does end, the toolkit closes the
    // windows.
    QObject::connect(
        &parts->application, &QGuiApplication::commitDataRequest,
        [](QSessionManager& Session) { Session.setRestartHint(QSessionManager::RestartNever); });
    if (pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
    parts->signals = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(parts->signals.get(), &QSocketNotifier::activated, [this] {
        parts->signals->setEnabled(false);
        parts->end();
    });
    struct sigaction action = {};
    action.sa_handler = NoteSignal;
    for (const int request : {SIGTERM, SIGINT, SIGHUP}) sigaction(request, &action, nullptr);
}

}
