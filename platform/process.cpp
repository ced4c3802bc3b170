#include "platform/process.h"

#include <cstdio>
#include <cstdlib>

void EndProcess(int exitCode) {
    std::fflush(nullptr);
    std::_Exit(exitCode);
}
