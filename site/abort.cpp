#include "site/abort.h"

bool AbortPublish = false;

void SetAbortPublish(bool abort) {
    AbortPublish = abort;
}
