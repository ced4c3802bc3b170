#include "publish/delivery.h"

#include "core/settings.h"
#include "portal/session.h"
#include "publish/ftp.h"
#include "site/abort.h"
#include "site/outputs.h"
#include "site/steps.h"

namespace {

bool SendByFTP() {
    SetOverallProgress(4);
    const bool sent = SendFiles(OutputFiles);
    SetOverallProgress(7);
    return sent;
}

bool SaveToFolder() {
    const QString folder = StoragePath.isEmpty() ? DBpath + "temp/" : StoragePath;
    if (!SaveOutputFiles(folder)) {
        StepFailed();
        return false;
    }
    StepDone();
    SetOverallProgress(kAllTasks);
    return true;
}

} // namespace

bool DeliverSite(SiteSnapshot& snapshot) {
    const bool delivered = StorageMethod == kStorageFTP ? SendByFTP() : SaveToFolder();
    if (AbortPublish) {
        return delivered;
    }
    NextStep();
    while (StepIndex < PortalStep()) { // what a connection that failed has left undone
        StepFailed();
        NextStep();
    }
    ClearOutputFiles();
    PortalSync(snapshot);
    SetOverallProgress(kAllTasks);
    return delivered;
}
