// Bringing the generated files of one publish to an FTP server: connects, makes sure the folder
// exists, and sends each changed file through a staging file in the store's folder.
#pragma once

#include "site/outputs.h"

#include <QString>
#include <functional>
#include <vector>

class TransferClient;

extern int FTPLastState; // last state the client reported; 12: the last command finished without
                         // error. 0 at start
extern QString FTPLastError; // the server's text of the last error reported

// How long a connection, a reply or a transfer that stands still is waited for: seconds.
// Process-wide, so that tests need not wait as long as users.
extern int FTPRequestTimeout; // 20 at start

// The entry point of a publish. False when the connection failed or the run was cancelled. A failed
// transfer counts as success, so that one file that the server refuses doesn't have the whole site
// sent again: the step list alone shows it.
bool SendFiles(std::vector<OutputFile>& files);

// Logs in and opens FTPPath, making its last level if it is missing. False after a box with the
// reason.
bool ConnectFTP();

// Has `start` start one command of the client and waits for its end; true if it finished without
// error.
bool ExecuteFTPCommand(const std::function<void(TransferClient&)>& start);

// Marks what differs from the control file and sends it. False only when cancelled.
bool SendChangedFiles(std::vector<OutputFile>& files);

// Ends the session without waiting; a command under way is abandoned.
void CloseFTP();

// The main form's client for sending; lives as long as that form.
TransferClient& ineFTPSend();
