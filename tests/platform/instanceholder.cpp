// The other program of the single-instance tests: takes the user's place, says so, and says when it
// is asked to show itself. Ends with its standard input.
#include "platform/instance.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <cstdio>
#include <unistd.h>

namespace {

void Say(const char* line) {
    std::puts(line);
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (!ClaimInstance()) {
        Say("refused");
        return 0;
    }
    OnRaiseRequest([] { Say("raised"); });
    Say("held");
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    return QCoreApplication::exec();
}
