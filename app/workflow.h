// One press of the button takes the catalogue to the web: snapshot, generation, delivery, and what
// is recorded at the end.
#pragma once

// How the last run of this process ended.
enum class PublishOutcome { None, Delivered, NotDelivered };
extern PublishOutcome LastOutcome; // written here; None until a run has ended

// Connects the buttons of the page "Actualizar Web".
void ConnectPublish();

// A run has begun and isn't over, also if it has been cancelled; what follows on it, such as that
// the controls are enabled again, belongs to it.
bool PublishUnderWay();

// Either PublishButton: kPublishUpdate starts a run and returns when it is over, kPublishCancel
// cancels it.
void cmdUpdateWeb_Click(int index);

// Asks the run to stop at its next test; the current step shows as failed at once.
void CancelPublish();
