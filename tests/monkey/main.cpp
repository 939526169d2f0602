#include "services/forms/Application.h"
#include "tests/monkey/Monkey.h"

#include <QPixmapCache>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/common_interface_defs.h>
#endif

namespace vellarno::test {

namespace {

constexpr unsigned FixedSeed = 20261122;
constexpr int ShortRun = 1000;

struct
{
    unsigned Seed = 0;
    int Event = 0;
    const Monkey* Life = nullptr;
} running;

void TellPlace()
{
    if (running.Life)
        std::fprintf(stderr, "monkey: seed %u, event %d\n%s", running.Seed, running.Event,
                     running.Life->Notes().c_str());
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
    std::printf("monkey: seed %u, %d events\n", Seed, Events);
    std::fflush(stdout);
    const auto start = std::chrono::steady_clock::now();
    std::mt19937 dice(Seed);
    running = {.Seed = Seed};
    bool held = true;
    while (held && running.Event < Events) {
        Monkey life(dice);
        running.Life = &life;
        try {
            while (++running.Event < Events && life.Act()) {
            }
        } catch (const Fault& fault) {
            TellPlace();
            std::fprintf(stderr, "broken: %s\n%s", fault.what(), life.Windows().c_str());
            held = false;
        }
        running.Life = nullptr;
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    std::printf("monkey: %d events in %.1f s\n", running.Event, took.count());
    return held;
}

/// The toolkit's store of drawn pictures has a limit of its own and fills slowly: it isn't counted.
void PrintHoldings(const char* When)
{
    QPixmapCache::clear();
    std::string word;
    std::ifstream status("/proc/self/status");
    while (word != "VmRSS:" && status >> word) {
    }
    status >> word;
    const std::filesystem::directory_iterator files("/proc/self/fd");
    std::printf("%-13s  resident %s kB, heap %zu bytes, %td files\n", When, word.c_str(),
                mallinfo2().uordblks, std::distance(begin(files), end(files)));
    std::fflush(stdout);
}

/// The window stands open for days; its clock ticks as often as ever, only faster.
void RunDays(int Days)
{
    constexpr int ticksOfDay = 86400 * 10 / 4;
    std::mt19937 dice(FixedSeed);
    Monkey monkey(dice);
    const double start = Now();
    PrintHoldings("at the start");
    for (int day = 0; day < Days; ++day) {
        for (int tick = 0; tick < ticksOfDay; ++tick) {
            monkey.ClockShows(start + day + static_cast<double>(tick) / ticksOfDay);
            monkey.Tick();
            if (tick % 50 == 0) Settle();
        }
        PrintHoldings("after a day");
    }
}

/// Seed after seed: after the first rounds nothing may grow.
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
