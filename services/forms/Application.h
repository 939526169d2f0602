#pragma once

#include <functional>
#include <memory>

namespace vellarno::forms {

/// The program's connection to the desktop: one for the whole life of the process.
class Application
{
public:
    Application(int& ArgumentCount, char** Arguments);
    ~Application();

    /// Runs the events of all windows until Quit; gives the process's exit code.
    int Run();
    /// Ends Run, also out of a modal box.
    static void Quit();

    /// Called on SIGTERM and SIGINT, between other events, and when the desktop session ends.
    void OnEndRequest(std::function<void()> Handler);

private:
    struct Parts;
    std::unique_ptr<Parts> parts;
};

}
