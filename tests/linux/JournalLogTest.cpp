#include "platform/linux/process/JournalLog.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <sched.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string>

namespace brimlight::test {
namespace {

/// Runs in a child of its own whose root is an empty folder, so that the journal of the machine is out of
/// reach. Exit status: 0 as expected, 1 wrong content, 2 the sandbox could not be made.
int inFolderOfItsOwn(const char *root, bool withJournal)
{
    if (geteuid() != 0 && unshare(CLONE_NEWUSER) != 0)
        return 2;
    if (chroot(root) != 0 || chdir("/") != 0)
        return 2;
    int receiver = -1;
    if (withJournal) {
        mkdir("/run", 0755);
        mkdir("/run/systemd", 0755);
        mkdir("/run/systemd/journal", 0755);
        receiver = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strcpy(address.sun_path, "/run/systemd/journal/socket");
        if (bind(receiver, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
            return 2;
    }
    JournalLog().write(LogLevel::info, QStringLiteral("App"), QStringLiteral("Brimlight dev launched"));
    if (!withJournal)
        return 0;
    std::array<char, 4096> buffer{};
    const ssize_t size = recv(receiver, buffer.data(), buffer.size(), MSG_DONTWAIT);
    const std::string text(buffer.data(), static_cast<size_t>(std::max<ssize_t>(size, 0)));
    for (const char *field : {"MESSAGE=Brimlight dev launched\n", "SUBSYSTEM=com.sorrelbrook.brimlight\n",
                              "CATEGORY=App\n", "PRIORITY=6\n"}) {
        if (text.find(field) == std::string::npos)
            return 1;
    }
    return 0;
}

int exitStatus(bool withJournal)
{
    const QTemporaryDir folder;
    const QByteArray root = folder.path().toLocal8Bit();
    const pid_t child = fork();
    if (child == 0)
        _exit(inFolderOfItsOwn(root.constData(), withJournal));
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

TEST(JournalLog, SendsMessageSubsystemAndCategory)
{
    EXPECT_EQ(exitStatus(true), 0);
}

TEST(JournalLog, WithoutAJournalNothingHappens)
{
    EXPECT_EQ(exitStatus(false), 0);
}

} // namespace brimlight::test
