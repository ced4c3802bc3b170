// The last stage of a generation: the finished files reach their destination.
#pragma once

// Entered with the step list on its third step. True if the files reached their destination.
// OutputFiles is emptied unless the run was cancelled.
bool DeliverSite();
