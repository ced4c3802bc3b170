// The colleague (colleague.cpp): another copy of the program in a process of its own.
#pragma once

#include <QProcess>
#include <QString>

class ColleagueProcess {
public:
    // Ready when the constructor returns; with `killer` it can be armed to die at a write.
    explicit ColleagueProcess(const QString& folder, bool killer = false);
    ~ColleagueProcess();

    // Sends a line and waits for its answer; empty when the process has died.
    QString Ask(const QString& line);

    // As if the machine had taken it: kill -9.
    void Kill();

    // For long runs: sends a line, and later takes the answers up to and including `last`.
    void Send(const QString& line);
    QStringList AnswersUntil(const QString& last);

private:
    QString Hear(); // one answer

    QProcess process;
};
