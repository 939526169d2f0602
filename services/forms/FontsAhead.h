#pragma once

#include <latch>
#include <thread>

namespace vellarno::forms {

/// Reads the system's fonts on a thread of its own while the display answers: a window comes up
/// some 7 of 37 ms earlier. The toolkit takes a startup id of the desktop out of the environment
/// meanwhile: the C library frees nothing then, and at worst this reader overlooks a variable.
class FontsAhead
{
public:
    FontsAhead();
    /// Once the toolkit is there: it lists them as well, beside what else the start does.
    void ListThem() { toolkitStarted.count_down(); }
    /// Before the toolkit goes.
    void Wait() { reader.join(); }

private:
    std::latch toolkitStarted{1};
    std::jthread reader;
};

}
