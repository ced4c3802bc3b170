#include "publish/delivery.h"

#include "core/settings.h"
#include "publish/ftp.h"
#include "site/abort.h"
#include "site/outputs.h"
#include "site/steps.h"

namespace {

constexpr int kStorageFTP = 1;
constexpr int kAllTasks = 1;   // the overall bar
constexpr int kTaskRange = 10; // its range

bool SendByFTP() {
    SetProgress(4, kTaskRange, 0, kAllTasks);
    const bool sent = SendFiles(OutputFiles);
    SetProgress(7, kTaskRange, 0, kAllTasks);
    return sent;
}

bool SaveToFolder() {
    const QString folder = StoragePath.isEmpty() ? DBpath + "temp/" : StoragePath;
    if (!SaveOutputFiles(folder)) {
        StepFailed();
        return false;
    }
    StepDone();
    SetProgress(kTaskRange, kTaskRange, 0, kAllTasks);
    return true;
}

} // namespace

bool DeliverSite(SiteSnapshot& /*snapshot*/) {
    const bool delivered = StorageMethod == kStorageFTP ? SendByFTP() : SaveToFolder();
    if (AbortPublish) {
        return delivered;
    }
    NextStep();
    ClearOutputFiles();
    SetProgress(kTaskRange, kTaskRange, 0, kAllTasks);
    return delivered;
}
