#include "engine/Clock.h"
#include "engine/DateTime.h"
#include "services/forms/Application.h"
#include "tests/monkey/Monkey.h"
#include "tests/support/Driver.h"

#include <QPixmapCache>
#include <QString>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <random>
#include <string>
#include <string_view>
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace vellarno::test {

namespace {

constexpr unsigned FixedSeed = 20261122;
constexpr int ShortRun = 1000;

unsigned seed = 0;
const Monkey* running = nullptr;

void TellPlace()
{
    if (running)
        std::fprintf(stderr, "monkey: seed %u, event %d\n%s", seed, running->Events(),
                     running->Notes().c_str());
}

/// What the toolkit complains of is a fault too; what the offscreen platform can't do is none.
void TakeComplaint(QtMsgType, const QMessageLogContext&, const QString& Text)
{
    if (Text.startsWith(QLatin1String("This plugin does not support"))) return;
    TellPlace();
    std::fprintf(stderr, "%s\n", qPrintable(Text));
    std::abort();
}

/// @return false if something didn't hold; the report has been printed then.
bool Run(unsigned Seed, int Events)
{
    seed = Seed;
    std::printf("monkey: seed %u, %d events\n", Seed, Events);
    std::fflush(stdout);
    const auto start = std::chrono::steady_clock::now();
    Monkey monkey(Seed);
    running = &monkey;
    bool held = true;
    try {
        while (monkey.Events() < Events) monkey.Act();
    } catch (const Fault& fault) {
        TellPlace();
        std::fprintf(stderr, "broken: %s\n%s", fault.what(), monkey.Windows().c_str());
        held = false;
    }
    running = nullptr;
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("monkey: %d events in %.1f s\n", monkey.Events(), took.count());
    return held;
}

/// The toolkit's store of drawn buttons has a limit of its own and fills slowly: it isn't counted.
void PrintHoldings(const char* When)
{
    QPixmapCache::clear();
    std::string word;
    std::ifstream status("/proc/self/status");
    while (word != "VmRSS:" && status >> word) {
    }
    status >> word;
    const auto files = std::filesystem::directory_iterator("/proc/self/fd");
    std::printf("%-14s resident %s kB, heap %zu bytes, %td files\n", When, word.c_str(),
                mallinfo2().uordblks, std::distance(begin(files), end(files)));
    std::fflush(stdout);
}

/// The window stands open for days; its clock ticks at its own pace, only faster.
void RunDays(int Days)
{
    constexpr int ticksOfDay = 86400 * 10 / 4;
    Monkey monkey(FixedSeed);
    const double start = Now();
    PrintHoldings("at the start");
    for (int day = 0; day < Days; ++day) {
        for (int tick = 0; tick < ticksOfDay; ++tick) {
            monkey.SetNow(start + day + static_cast<double>(tick) / ticksOfDay);
            monkey.Tick();
            if (tick % 50 == 0) Settle();
        }
        PrintHoldings("after a day");
    }
}

/// The same seeds round after round: after the first ones nothing may grow.
bool RunRounds(int Seconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(Seconds);
    bool held = true;
    PrintHoldings("at the start");
    for (unsigned round = 0; held && std::chrono::steady_clock::now() < end; ++round) {
        held = Run(FixedSeed + round, 5000);
        PrintHoldings("after a round");
    }
    return held;
}

}

}

/// monkey                    two short runs, one of them of a random seed
/// monkey SEED EVENTS        that run; a seed with the same events repeats it
/// monkey --days DAYS        the clock alone, with what the process holds after each day
/// monkey --seconds SECONDS  seed after seed, with what the process holds after each
int main(int ArgumentCount, char** Arguments)
{
    using namespace vellarno::test;
    const vellarno::forms::Application application(ArgumentCount, Arguments);
    qInstallMessageHandler(TakeComplaint);
#if defined(__SANITIZE_ADDRESS__)
    __sanitizer_set_death_callback(TellPlace);
#endif
    bool held = true;
    if (ArgumentCount < 3) {
        held = Run(FixedSeed, ShortRun) && Run(std::random_device{}(), ShortRun);
    } else {
        const std::string_view mode = Arguments[1];
        const int amount = std::atoi(Arguments[2]);
        if (mode == "--days")
            RunDays(amount);
        else if (mode == "--seconds")
            held = RunRounds(amount);
        else
            held = Run(static_cast<unsigned>(std::strtoul(Arguments[1], nullptr, 10)), amount);
    }
    return held ? EXIT_SUCCESS : EXIT_FAILURE;
}
