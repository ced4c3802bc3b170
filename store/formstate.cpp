#include "store/formstate.h"

bool FillingForm = false;

FillingGuard::FillingGuard() : before(FillingForm) {
    FillingForm = true;
}

FillingGuard::~FillingGuard() {
    FillingForm = before;
}
