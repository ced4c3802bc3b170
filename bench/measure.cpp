#include "bench/measure.h"

#include <QFile>
#include <algorithm>

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int Memory(const QByteArray& name) {
    QFile status("/proc/self/status");
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith(name)) {
                return line.mid(name.size()).simplified().split(' ').first().toInt();
            }
        }
    }
    return 0;
}

void ForgetPeak() {
    QFile peaks("/proc/self/clear_refs");
    if (!peaks.open(QIODevice::WriteOnly) || peaks.write("5") != 1) {
        qFatal("The peak of memory cannot be measured");
    }
}
