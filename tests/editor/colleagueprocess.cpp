#include "tests/editor/colleagueprocess.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace {

constexpr int kLimit = 60000; // milliseconds for one answer

} // namespace

ColleagueProcess::ColleagueProcess(const QString& folder, bool killer) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // What it leaves there goes with the catalogue, however it ends.
    environment.insert("XDG_CONFIG_HOME", folder);
    environment.insert("XDG_RUNTIME_DIR", folder);
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
    return Hear();
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
    do {
        answers += Hear();
    } while (answers.last() != last && !answers.last().isEmpty());
    EXPECT_EQ(answers.last(), last) << "after " << qPrintable(answers.join(u'|'));
    return answers;
}

QString ColleagueProcess::Hear() {
    while (!process.canReadLine() && process.waitForReadyRead(kLimit)) {
    }
    QString answer = QString::fromUtf8(process.readLine());
    answer.chop(1);
    return answer;
}
