#include "services/forms/Application.h"

#include "services/forms/Accessibility.h"
#include "services/forms/Italian.h"
#include "services/forms/Look.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <QSessionManager>
#include <QSocketNotifier>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fontconfig/fontconfig.h>
#include <latch>
#include <thread>
#include <unistd.h>

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
/// The programs that this one starts make their own choice.
class PreferX11
{
public:
    PreferX11()
    {
        if (chosen) return;
        // Wayland is found in the session's folder; its library tells the terminal in English where
        // there is none.
        const bool session = qgetenv("XDG_RUNTIME_DIR").startsWith('/');
        qputenv("QT_QPA_PLATFORM", session ? "xcb;wayland" : "xcb");
        // Two threads in the loader and the memory map at once take longer than one after the
        // other: what X11 needs is loaded before the fonts are read beside it.
        if (qEnvironmentVariableIsSet("DISPLAY"))
            QPluginLoader(QLibraryInfo::path(QLibraryInfo::PluginsPath) +
                          QStringLiteral("/platforms/libqxcb.so"))
                .load();
    }
    ~PreferX11()
    {
        if (!chosen) qunsetenv("QT_QPA_PLATFORM");
    }

private:
    const bool chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
};

/// Stands in while the toolkit looks for a display: it complains of each kind in turn, also where
/// the next one is there, and aborts after the last.
void TellNoDisplay(QtMsgType Type, const QMessageLogContext&, const QString&)
{
    if (Type != QtFatalMsg) return;
    std::fputs("Impossibile avviare il programma: nessuno schermo raggiungibile.\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

QtMessageHandler toolkitMessages = nullptr;

/// The toolkit ends the program when the display is gone, and says so in English. That a language
/// has no table of composed characters is no matter for a user.
void TellLostDisplay(QtMsgType Type, const QMessageLogContext& Context, const QString& Message)
{
    if (Message.contains(QLatin1String("connection broke")))
        std::fputs("Lo schermo non risponde più: il programma termina.\n", stderr);
    else if (qstrcmp(Context.category, "qt.xkb.compose") != 0)
        toolkitMessages(Type, Context, Message);
}

}

struct Application::Parts
{
    Parts(int& ArgumentCount, char** Arguments) : application(ArgumentCount, Arguments)
    {
        toolkitStarted.count_down();
    }
    ~Parts() { fonts.join(); }

    /// Reads the system's fonts while the display answers. Only to ask for one makes the toolkit
    /// list them all.
    void ListFonts()
    {
        FcInit();
        toolkitStarted.wait();
        QFontDatabase::isFixedPitch(QStringLiteral("Sans"));
    }

    std::latch toolkitStarted{1};
    std::jthread fonts{[this] { ListFonts(); }};
    QApplication application;
    Italian italian;
    std::unique_ptr<QSocketNotifier> signals;
    std::function<void()> end;
};

Application::Application(int& ArgumentCount, char** Arguments)
{
    {
        const PreferX11 choice;
        toolkitMessages = qInstallMessageHandler(TellNoDisplay);
        parts = std::make_unique<Parts>(ArgumentCount, Arguments);
        qInstallMessageHandler(TellLostDisplay);
    }
    // On X11 all that the toolkit loads at need is in by now: a search through its further picture
    // formats would find none that is wanted.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        QCoreApplication::setLibraryPaths({});
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
        [](QSessionManager& session) { session.setRestartHint(QSessionManager::RestartNever); });
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
