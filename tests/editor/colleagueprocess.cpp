#include "tests/editor/colleagueprocess.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

constexpr int kLimit = 60000; // milliseconds for one answer

} // namespace

ColleagueProcess::ColleagueProcess(const QString& folder, bool killer) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (killer) {
        // By name, since a path with blanks would count as several.
        const QFileInfo library(KILLER);
        environment.insert("LD_PRELOAD", library.fileName());
        environment.insert("LD_LIBRARY_PATH",
                           library.path() + ":" + environment.value("LD_LIBRARY_PATH"));
    }
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(COLLEAGUE, {folder});
    EXPECT_EQ(AnswersUntil("ready").size(), 1);
}

ColleagueProcess::~ColleagueProcess() {
    process.closeWriteChannel();
    if (!process.waitForFinished(kLimit)) {
        Kill();
    }
}

QString ColleagueProcess::Ask(const QString& line) {
    Send(line);
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(kLimit)) {
            return {};
        }
    }
    return QString::fromUtf8(process.readLine()).chopped(1);
}

void ColleagueProcess::Kill() {
    process.kill();
    process.waitForFinished(kLimit);
}

void ColleagueProcess::Send(const QString& line) {
    process.write(line.toUtf8() + '\n');
    process.waitForBytesWritten(kLimit);
}

QStringList ColleagueProcess::AnswersUntil(const QString& last) {
    QStringList answers;
    while (answers.isEmpty() || answers.last() != last) {
        while (!process.canReadLine()) {
            if (!process.waitForReadyRead(kLimit)) {
                ADD_FAILURE() << "no answer after " << qPrintable(answers.join(u'|'));
                return answers;
            }
        }
        answers += QString::fromUtf8(process.readLine()).chopped(1);
    }
    return answers;
}
