#include "mainwindow/frmMain.h"
#include "services/App.h"
#include "services/GenericBas.h"
#include "services/Platform.h"
#include "services/forms/Application.h"
#include "services/platform/PrivateFile.h"

#include <cstdlib>

namespace vellarno {

namespace {

/// Shows the main window, or tells the user that it is open already.
/// @return the process's exit code, once the last window is gone.
int Main(forms::Application& Application)
{
    if (!System().BecomeOnlyInstance()) {
        System().MsgBox(std::string(App::Title) + " è già in esecuzione", forms::Information,
                        App::Title);
        return 0;
    }
    // A lost display ends the process from within the toolkit, past the window's own end.
    std::atexit([] { DeletePrivateFile(HelpFilePath()); });
    frmMain window;
    Application.OnEndRequest([&window] { window.Close(); });
    window.Show();
    return Application.Run();
}

}

}

int main(int argc, char** argv)
{
    vellarno::forms::Application application(argc, argv);
    return vellarno::Main(application);
}
