#include "tests/support/otherprocess.h"

#include <csignal>
#include <exception>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kSilenceMilliseconds = 10000;

} // namespace

OtherProcess::OtherProcess(const std::function<void(OtherProcess&)>& body) {
    int ends[2] = {};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        ADD_FAILURE() << "no channel";
        return;
    }
    process = fork();
    const bool isChild = process == 0;
    channel = ends[isChild ? 1 : 0];
    close(ends[isChild ? 0 : 1]);
    if (!isChild) {
        return;
    }
    try {
        body(*this);
    } catch (const std::exception&) {
        Say('!');
    }
    _exit(0);
}

OtherProcess::~OtherProcess() {
    Kill();
    close(channel);
}

void OtherProcess::Say(char word) const {
    static_cast<void>(send(channel, &word, 1, MSG_NOSIGNAL));
}

char OtherProcess::Hear() const {
    pollfd waiting = {channel, POLLIN, 0};
    char word = 0;
    if (poll(&waiting, 1, kSilenceMilliseconds) == 1 && read(channel, &word, 1) == 1) {
        return word;
    }
    return 0;
}

void OtherProcess::Kill() {
    if (process > 0) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
        process = 0;
    }
}
