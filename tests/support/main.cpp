#include "services/forms/Application.h"

#include <gtest/gtest.h>

int main(int ArgumentCount, char** Arguments)
{
    testing::InitGoogleTest(&ArgumentCount, Arguments);
    const vellarno::forms::Application application(ArgumentCount, Arguments);
    return RUN_ALL_TESTS();
}
