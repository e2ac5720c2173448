// SPDX-License-Identifier: MIT

#include "e2e/SystemCalls.h"

#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

QStringList texts(std::initializer_list<const char*> all) {
    QStringList list;
    for (const char* text : all)
        list.append(QString::fromUtf8(text));
    return list;
}

TEST(SystemCalls, AreReadFromATraceOfSeveralThreads) {
    const auto calls = systemCalls("10 close(3) = 0\n"
                                   "11 openat(AT_FDCWD</>, \"/a\", O_RDONLY <unfinished ...>\n"
                                   "10 --- SIGCHLD {si_signo=SIGCHLD} ---\n"
                                   "11 <... openat resumed>) = 4</a>\n"
                                   "10 +++ exited with 0 +++\n");
    EXPECT_EQ(calls, (QList<SystemCall>{
                         {"close", "3) = 0"},
                         {"openat", "AT_FDCWD</>, \"/a\", O_RDONLY <unfinished ...>"},
                     }));
}

TEST(SystemCalls, TellOfAnExitWithItsStatus) {
    EXPECT_TRUE(tellsOfExit("10 +++ exited with 0 +++\n", 0));
    EXPECT_FALSE(tellsOfExit("10 +++ exited with 1 +++\n", 0));
    EXPECT_FALSE(tellsOfExit("10 +++ killed by SIGSEGV +++\n", 0));
}

TEST(SystemCalls, TellWhereAConnectionGoesToWhetherItComesAboutOrNot) {
    const auto calls = systemCalls(
        "1 connect(3<socket:[1]>, {sa_family=AF_UNIX, sun_path=@\"/tmp/.X11-unix/X1\"}, 20) = 0\n"
        "1 connect(4, {sa_family=AF_UNIX, sun_path=\"/run/bus\"}, 11) = -1 ENOENT (No such file)\n"
        "1 connect(5, {sa_family=AF_INET, sin_port=htons(443), "
        "sin_addr=inet_addr(\"192.0.2.1\")}, 16) = -1 EINPROGRESS (Operation now in progress)\n"
        "1 sendto(6, \"x\", 1, 0, {sa_family=AF_INET6, sin6_port=htons(53), ...}, 28) = 1\n"
        "1 sendto(3, \"x\", 1, MSG_NOSIGNAL, NULL, 0) = 1\n"
        "1 getsockname(5, {sa_family=AF_INET, sin_port=htons(9), "
        "sin_addr=inet_addr(\"192.0.2.2\")}, [16]) = 0\n");
    const auto found = destinations(calls);
    ASSERT_EQ(found.size(), 4);
    EXPECT_EQ(found.first(3),
              texts({"unix:@/tmp/.X11-unix/X1", "unix:/run/bus", "inet:192.0.2.1:443"}));
    EXPECT_TRUE(found[3].startsWith(QStringLiteral("sendto(6, ")));
}

TEST(SystemCalls, TellOfListening) {
    const auto calls = systemCalls("1 bind(3, {sa_family=AF_INET, sin_port=htons(80), "
                                   "sin_addr=inet_addr(\"0.0.0.0\")}, 16) = 0\n"
                                   "1 listen(3, 5) = 0\n");
    EXPECT_EQ(destinations(calls), texts({"inet:0.0.0.0:80", "listen(3, 5) = 0"}));
}

TEST(SystemCalls, TellWhatIsToBeChanged) {
    const auto calls = systemCalls(
        "1 openat(AT_FDCWD</>, \"/read\", O_RDONLY|O_CLOEXEC) = 3</read>\n"
        "1 openat(AT_FDCWD</>, \"/made\", O_WRONLY|O_CREAT, 0600) = -1 EACCES (Permission denied)\n"
        "1 open(\"/with \\\"quotes\\\"\", O_RDWR) = 3\n"
        "1 rename(\"/old\", \"/new\") = 0\n"
        "1 unlink(\"/gone\" <unfinished ...>\n"
        "1 stat(\"/seen\", {st_mode=S_IFREG}) = 0\n"
        "1 memfd_create(\"heap\", MFD_CLOEXEC) = 4\n");
    EXPECT_EQ(changedPaths(calls),
              texts({"/made", "/with \\\"quotes\\\"", "/old", "/new", "/gone"}));
}

TEST(SystemCalls, TellWhichProgramsAreRun) {
    const auto calls =
        systemCalls("1 execve(\"/bin/a\", [\"a\", \"-x\"], 0x7ffc /* 4 vars */) = 0\n"
                    "2 execve(\"/bin/b\", [\"b\"], 0x7ffc /* 4 vars */) = -1 ENOENT\n");
    EXPECT_EQ(programs(calls), texts({"/bin/a", "/bin/b"}));
}

} // namespace
} // namespace brellowind::test
