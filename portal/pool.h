// The requests that wait for the portal and the eight connections that work them off. Each
// connection carries one request and counts as done when the portal closes it, whatever it has
// answered; one that breaks has its request repeated. Owns all values below.
#pragma once

#include "transfer/tcpsocket.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <functional>
#include <vector>

inline constexpr int kPortalSockets = 8;
inline constexpr int kNoJob = -1;

enum JobState { kJobWaiting = 0, kJobOnSocket = 1, kJobFinished = 2 };

struct PortalJob {
    bool IsPicture = false;
    QString Name;       // what it is about: a reference, or a word
    QByteArray Request; // the whole request, headers and body; let go of when it is finished
    JobState State = kJobWaiting;
};

struct PortalSocket {
    int JobIndex = kNoJob; // row of PortalJobs being served
    QByteArray Received;   // the answer so far; of a job's answer no more than its beginning
    int Broken = 0;        // how often a connection of this socket has ended in an error
    bool WasIdle = false;  // the job was given to a connection that stood already
};

// A session, from ResetPortal to the next one.
extern std::vector<PortalJob> PortalJobs; // at least one row; an empty one stands for no request
extern std::array<PortalSocket, kPortalSockets> PortalSockets;
extern QString PortalHost;      // name of the portal's server
extern bool PortalLoggedIn;     // from a good log-in to the next session
extern bool PortalHostNotFound; // the host has no address
extern bool PortalSendDone;     // a socket has handed over all that it had to send
extern int PortalDoneCount;     // finished jobs, counted anew with every connection

// Port of the portal. Process-wide, so that tests can name one of their own.
extern int PortalPort; // 80 at start

// How long a run without a user, who could cancel it, waits for a portal that finishes nothing:
// milliseconds.
extern int PortalPatience; // 600,000 at start

// A new session with `host`, which ends at its first control character: nobody is logged in, and
// there is one empty job.
void ResetPortal(const QString& host);

// The sockets take jobs from now on.
void SetPortalLoggedIn();

// Forgets the jobs; one empty row is left. PortalDoneCount stays: with nothing to send the run is
// over at once, by the 1 that the log-in has earned.
void ResetPortalJobs();

// Adds a job, after one socket more at the most has been connected and the event loop served. Where
// many bytes wait already the portal is waited for first. Adds nothing once it is given up.
void PortalQueueRequest(const QString& name, const QByteArray& request, bool isPicture);

// The user has cancelled the run, or it has none and PortalPatience is at an end.
bool PortalGivenUp();

// Serves the event loop until `done` says so or the portal is given up; the last answer of `done`.
bool WaitForPortal(const std::function<bool()>& done);

// Starts a connection to the portal; a socket that can't is left closed.
void PortalConnect(int index);

// Clears PortalSendDone and sends on socket 0, past the jobs.
void SendOnPortal(const QByteArray& request);

// What is left of the jobs is not sent any more.
void DropPortalJobs();

// The end of a session. Socket 0 stays: the one job of a run that has no other counts as done
// before it has gone out.
void ClosePortalSockets();

// Whether there is such a job, and the wait for it before the process ends, `milliseconds` at the
// most.
bool PortalGoesOut();
void FinishPortal(int milliseconds);

TcpSocket& wskPortal(int index);
