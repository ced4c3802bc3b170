// Two flags that every routine which fills the product form shares with the handlers of its
// controls.
#pragma once

// Controls are being filled by code: change handlers stay quiet. False at start; set by
// FillingGuard alone.
extern bool FillingForm;

// Sets FillingForm while it lives; may be nested.
class FillingGuard {
public:
    FillingGuard();
    ~FillingGuard();
    FillingGuard(const FillingGuard&) = delete;
    FillingGuard& operator=(const FillingGuard&) = delete;

private:
    bool before;
};
