#include "services/forms/Application.h"

#include <QString>
#include <gtest/gtest.h>

namespace {

QtMessageHandler next = nullptr;

/// What the offscreen platform can't do (raising, opacity) is no news.
void DropPlatformsLimits(QtMsgType Type, const QMessageLogContext& Context, const QString& Text)
{
    if (!Text.startsWith(QLatin1String("This plugin does not support"))) next(Type, Context, Text);
}

}

int main(int ArgumentCount, char** Arguments)
{
    testing::InitGoogleTest(&ArgumentCount, Arguments);
    next = qInstallMessageHandler(DropPlatformsLimits);
    const vellarno::forms::Application application(ArgumentCount, Arguments);
    return RUN_ALL_TESTS();
}
