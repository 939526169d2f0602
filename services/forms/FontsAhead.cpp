#include "services/forms/FontsAhead.h"

#include <QFontDatabase>
#include <QLibraryInfo>
#include <QPluginLoader>

#include <fontconfig/fontconfig.h>

namespace vellarno::forms {

FontsAhead::FontsAhead()
{
    // Two threads in the loader and the memory map at once take longer than one after the other:
    // what X11 needs is loaded first.
    if (qEnvironmentVariableIsSet("DISPLAY"))
        QPluginLoader(QLibraryInfo::path(QLibraryInfo::PluginsPath) +
                      QStringLiteral("/platforms/libqxcb.so"))
            .load();
    reader = std::jthread([this] {
        FcInit();
        toolkitStarted.wait();
        QFontDatabase::isFixedPitch(QStringLiteral("Sans")); // to ask for one lists them all
    });
}

}
