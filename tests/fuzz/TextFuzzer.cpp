#include "tests/fuzz/TextProperties.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const std::string text(Data, Data + Size);
    vellarno::test::CheckText(text);
    vellarno::test::CheckPattern(text);
    return 0;
}
