#include "publish/ftp.h"

#include "core/flavour.h"
#include "platform/dialogs.h"
#include "publish/steps.h"

bool SendFiles(std::vector<OutputFile>& /*files*/) {
    StepFailed();
    MsgBox("Esta versión todavía no envía por FTP: publique en una carpeta local.",
           BoxIcon::Warning, AppName);
    return false;
}
