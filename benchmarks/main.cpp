#include "services/forms/Application.h"

#include <benchmark/benchmark.h>
#include <cstdlib>

/// The windows are measured where nothing but the program's own work counts: off the screen.
int main(int argc, char** argv)
{
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const vellarno::forms::Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
