#pragma once

#include <functional>
#include <memory>

namespace vellarno::forms {

/// The program's connection to the desktop: one for the whole life of the process.
class Application
{
public:
    Application(int ArgumentCount, char** Given);
    ~Application();

    /// Runs the events of all windows until Quit; gives the process's exit code.
    int Run();
    /// Ends Run, also out of a modal box.
    static void Quit();

    /// Called on SIGTERM, SIGINT and SIGHUP, between other events. At the end of the desktop
    /// session the windows are closed as by the user.
    void OnEndRequest(std::function<void()> Handler);

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

}
