// What a transfer client reports: states, and the numbers and texts of failures. The numbers of
// failures stand in messages behind the text, so that a user can quote them and a provider's help
// be searched for them: they are not to be changed.
#pragma once

#include <QString>

enum TransferState {
    kStateResolving = 1,
    kStateResolved = 2,
    kStateConnecting = 3,
    kStateConnected = 4,
    kStateRequesting = 5,
    kStateRequestSent = 6,
    kStateReceiving = 7,
    kStateReceived = 8,
    kStateDisconnecting = 9,
    kStateDisconnected = 10,
    kStateError = 11,
    kStateCompleted = 12
};

// Failures that callers tell apart.
inline constexpr int kErrTransferTimeout = 12002;
inline constexpr int kErrServerReply = 12003; // the server refused; its text is the ResponseInfo
inline constexpr int kErrHostNotFound = 12007;
inline constexpr int kErrLogin = 12014;
inline constexpr int kErrCannotConnect = 12029;
inline constexpr int kErrConnectionAborted = 12030;
inline constexpr int kErrConnectionReset = 12031;

// The number of a failure of libcurl's, a CURLcode.
int FailureNumber(int curlCode);

// For the user, where the server itself gave no reason.
QString FailureText(int number);
