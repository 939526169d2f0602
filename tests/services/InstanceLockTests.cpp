#include "tests/support/Folder.h"

#include "services/InstanceLock.h"

#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace vellarno::test {
namespace {

/// A pipe that both sides inherit.
struct Pipe
{
    int Ends[2];

    Pipe()
    {
        if (pipe(Ends) != 0) std::abort();
    }
    ~Pipe()
    {
        close(Ends[0]);
        CloseWriting();
    }
    char Read() const
    {
        char byte = 0;
        return read(Ends[0], &byte, 1) == 1 ? byte : '\0'; // nothing once nobody can write
    }
    void Write(char Byte) const
    {
        if (write(Ends[1], &Byte, 1) != 1) std::abort();
    }
    void CloseWriting() { close(std::exchange(Ends[1], -1)); }
};

/// Runs in a process of its own, which then ends without any cleaning up.
pid_t InAnotherProcess(const std::function<void()>& Work)
{
    const pid_t child = fork();
    if (child == 0) {
        Work();
        _exit(0);
    }
    return child;
}

struct InstanceLocks : testing::Test
{
    const Folder folder;
    Pipe start, answers, end;

    /// A process that waits for the start, tries, tells what came of it, and stays.
    pid_t Rival()
    {
        return InAnotherProcess([this] {
            start.CloseWriting();
            end.CloseWriting();
            start.Read();
            InstanceLock lock;
            answers.Write(lock.Take(folder.Path) ? 'y' : 'n');
            end.Read();
        });
    }
};

TEST_F(InstanceLocks, ASecondProcessIsRefusedUntilTheFirstEnds)
{
    const pid_t first = Rival();
    start.CloseWriting();
    ASSERT_EQ(answers.Read(), 'y');
    InstanceLock second;
    EXPECT_FALSE(second.Take(folder.Path));
    EXPECT_FALSE(second.Take(folder.Path));
    end.CloseWriting();
    waitpid(first, nullptr, 0);
    EXPECT_TRUE(second.Take(folder.Path));
    EXPECT_TRUE(second.Take(folder.Path)) << "it holds the lock already";
}

TEST_F(InstanceLocks, AKilledProcessLeavesNoLockBehind)
{
    const pid_t first = Rival();
    start.CloseWriting();
    ASSERT_EQ(answers.Read(), 'y');
    kill(first, SIGKILL);
    waitpid(first, nullptr, 0);
    InstanceLock second;
    EXPECT_TRUE(second.Take(folder.Path));
}

TEST_F(InstanceLocks, OfTwentyAtTheSameMomentExactlyOneWins)
{
    constexpr int Many = 20;
    std::vector<pid_t> rivals;
    for (int i = 0; i < Many; ++i) rivals.push_back(Rival());
    start.CloseWriting(); // all of them go
    int winners = 0;
    for (int i = 0; i < Many; ++i) winners += answers.Read() == 'y' ? 1 : 0;
    end.CloseWriting();
    for (const pid_t rival : rivals) waitpid(rival, nullptr, 0);
    EXPECT_EQ(winners, 1);
}

TEST_F(InstanceLocks, AFolderThatCantBeOpenedStopsNobody)
{
    InstanceLock lock;
    EXPECT_TRUE(lock.Take(folder.Path / "missing"));
    EXPECT_TRUE(lock.Take(""));
}

}
}
