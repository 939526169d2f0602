#include "tests/support/Folder.h"

#include "services/InstanceLock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace vellarno::test {
namespace {

/// A pipe that both processes have.
struct Pipe
{
    int Ends[2] = {-1, -1};

    Pipe() { EXPECT_EQ(pipe(Ends), 0); }
    ~Pipe()
    {
        close(Ends[0]);
        CloseWriting();
    }
    /// The next byte, or nothing once nobody can write any more.
    char Read() const
    {
        char byte = 0;
        return read(Ends[0], &byte, 1) == 1 ? byte : '\0';
    }
    void Write(char Byte) const { EXPECT_EQ(write(Ends[1], &Byte, 1), 1); }
    void CloseWriting() { close(std::exchange(Ends[1], -1)); }
};

struct InstanceLocks : testing::Test
{
    const Folder folder;
    Pipe start, answers, end;
    InstanceLock lock;

    /// A process that waits for the start, tries, tells what came of it, and stays to the end.
    pid_t Rival()
    {
        const pid_t child = fork();
        if (child != 0) return child;
        start.CloseWriting();
        end.CloseWriting();
        start.Read();
        answers.Write(lock.Take(folder.Path) ? 'y' : 'n');
        end.Read();
        _exit(0);
    }
};

TEST_F(InstanceLocks, ASecondProcessIsRefusedUntilTheFirstIsKilled)
{
    const pid_t first = Rival();
    start.CloseWriting();
    ASSERT_EQ(answers.Read(), 'y');
    EXPECT_FALSE(lock.Take(folder.Path));
    EXPECT_FALSE(lock.Take(folder.Path));
    kill(first, SIGKILL);
    waitpid(first, nullptr, 0);
    EXPECT_TRUE(lock.Take(folder.Path));
    EXPECT_TRUE(lock.Take(folder.Path)) << "it holds the lock already";
}

TEST_F(InstanceLocks, OfTwentyAtTheSameMomentExactlyOneWins)
{
    std::vector<pid_t> rivals;
    for (int i = 0; i < 20; ++i) rivals.push_back(Rival());
    start.CloseWriting(); // all of them go
    std::string told;
    for (std::size_t i = 0; i < rivals.size(); ++i) told += answers.Read();
    end.CloseWriting();
    for (const pid_t rival : rivals) waitpid(rival, nullptr, 0);
    std::ranges::sort(told);
    EXPECT_EQ(told, std::string(19, 'n') + 'y');
}

TEST_F(InstanceLocks, AFolderThatCantBeOpenedStopsNobody)
{
    EXPECT_TRUE(lock.Take(folder.Path / "missing"));
}

}
}
