#include "services/forms/Application.h"

#include <QString>
#include <gtest/gtest.h>

int main(int ArgumentCount, char** Arguments)
{
    testing::InitGoogleTest(&ArgumentCount, Arguments);
    static QtMessageHandler next = qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext& from, const QString& text) {
            // What the offscreen platform can't do (raising, opacity) is no news.
            if (!text.startsWith(QLatin1String("This plugin does not"))) next(type, from, text);
        });
    const vellarno::forms::Application application(ArgumentCount, Arguments);
    return RUN_ALL_TESTS();
}
