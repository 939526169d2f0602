#include "tests/fuzz/TextProperties.h"

#include <fstream>
#include <gtest/gtest.h>
#include <string>

using namespace vellarno::test;

/// What the fuzzer has found worth keeping, one input a line.
TEST(Fuzz, CorpusKeepsTheProperties)
{
    std::ifstream corpus(VELLARNO_CORPUS, std::ios::binary);
    int inputs = 0;
    for (std::string line; std::getline(corpus, line); ++inputs) {
        EXPECT_NO_THROW(CheckText(line)) << line;
        EXPECT_NO_THROW(CheckPattern(line)) << line;
    }
    EXPECT_GT(inputs, 20);
}
