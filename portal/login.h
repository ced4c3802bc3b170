// The log-in at the portal: who the agent is there, and the page that lists what the portal has of
// him already. Owns the values below; they live until the next log-in.
#pragma once

#include <QByteArray>
#include <QString>

extern QByteArray PortalCookie;    // of the answer, whole, attributes included; may be empty
extern QByteArray PortalAgentId;   // the agent's number
extern QByteArray PortalLoginPage; // the answer, headers and body, of a log-in that was good
extern int PortalLoginStatus;      // of the answer (RFC 9110); 0 without one

// At the beginning of a session.
void ResetPortalLogin();

// True when logged in: the answer holds a comment of the form "AgentId=1234-->". Neither value is
// encoded, so that a password with "&" breaks the form, as it always has.
bool PortalLogin(const QString& user, const QString& password);

// Sends a request on socket 0 and returns the answer up to the portal's closing of the connection,
// without a bound on the time; empty if the host has no address or the portal is given up. On a
// connection that breaks the request is sent anew.
QByteArray PortalExchange(const QByteArray& request);

// Value of the first line of that name in an HTTP response, without regard to case and without
// blanks at its ends; empty if there is none. Lines of the body are looked at like headers.
QByteArray ReadHeaderValue(const QByteArray& name, const QByteArray& response);
