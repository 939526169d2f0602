#include "tests/support/Recorder.h"

#include "services/GenericBas.h"

#include <gtest/gtest.h>

namespace vellarno {
namespace {

TEST(Resources, SoundsAreToldApart)
{
    test::Recorder recorder;
    PlayResSound(202);
    PlayResSound(201);
    EXPECT_EQ(recorder.Sounds, (std::vector{202, 201}));
}

}
}
