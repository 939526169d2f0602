#include "services/forms/Application.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

/// The font library keeps its caches to the end of the process.
extern "C" const char* __lsan_default_suppressions() // NOLINT(*-reserved-identifier)
{
    return "leak:libfontconfig\n";
}

int main(int ArgumentCount, char** Arguments)
{
    testing::InitGoogleTest(&ArgumentCount, Arguments);
    const QTemporaryDir runtime; // closed to others, as desktops have it
    qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const vellarno::forms::Application application(ArgumentCount, Arguments);
    return RUN_ALL_TESTS();
}
