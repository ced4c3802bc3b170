// What benches measure by.
#pragma once

#include <QByteArray>
#include <vector>

double Median(std::vector<double> values);

// A value of this process in kilobytes, by its name in the system's status, such as "VmHWM:", the
// peak of its memory.
int Memory(const QByteArray& name);

// From here on the peak is that of what comes.
void ForgetPeak();
