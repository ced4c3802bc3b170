// The cancel flag of one publish.
#pragma once

// The user has asked the run to stop: long stages test it between two rows or files, and a run that
// finds it set writes and sends nothing more. False at start and from the beginning of each
// generation. Written by SetAbortPublish alone.
extern bool AbortPublish;

void SetAbortPublish(bool abort);
