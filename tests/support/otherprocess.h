// A second process beside the test, for what two copies of the program do to each other.
#pragma once

#include <functional>

// A process of its own that runs `body` at once and ends with it; killed at the latest with the
// object. It must be started while this process has no store open. Both sides talk in single
// characters.
class OtherProcess {
public:
    explicit OtherProcess(const std::function<void(OtherProcess&)>& body);
    ~OtherProcess();
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    void Say(char word) const;
    // What the other side says next; 0 when it has ended or stays silent for ten seconds.
    char Hear() const;
    // Ends it as a crash would; returns when it is gone.
    void Kill();

private:
    int process = 0;
    int channel = -1;
};
