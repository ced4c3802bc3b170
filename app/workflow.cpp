#include "app/workflow.h"

#include "app/publishpage.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "details/webpreview.h"
#include "editor/buttons.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "portal/session.h"
#include "publish/generate.h"
#include "site/abort.h"
#include "site/steps.h"
#include "store/fielddefs.h"
#include "store/snapshot.h"
#include "text/dates.h"

#include <QScopedValueRollback>

PublishOutcome LastOutcome = PublishOutcome::None;

namespace {

// A run is under way: after a cancel the button is back before the run has noticed, and must not
// start another one inside it.
bool publishing = false;

bool underWay = false; // PublishUnderWay: until the press of the button has been answered

void ShowButton(int shown, int hidden) {
    frmMain->cmdUpdateWeb[shown]->setVisible(true);
    frmMain->cmdUpdateWeb[shown]->setFocus();
    frmMain->cmdUpdateWeb[hidden]->setVisible(false);
}

void ShowBusy(bool busy) {
    if (busy) {
        ShowButton(kPublishCancel, kPublishUpdate);
    }
    EnableWhileBusy("cmdUpdateWeb", !busy, frmMain);
    if (!busy) {
        DisableUnusedFields();
        RefreshButtons();
        ShowButton(kPublishUpdate, kPublishCancel);
    }
}

void RecordSuccess() {
    SetLastWebUpdate(DateText(Now()));
    ClearDeletedItems();
    SaveSettings();
}

// True if the site reached its destination. What no stage handles ends the run as a failed step.
bool RunGeneration() {
    SiteSnapshot snapshot;
    bool delivered = false;
    try {
        TakeSiteSnapshot(snapshot);
        const bool changedOnly = frmMain->optAllOrChanged[kPublishChanged]->isChecked();
        // A cancel may have come since the press of the button: then nothing begins.
        delivered = !AbortPublish && GenerateSite(TemplPath, snapshot, changedOnly);
    } catch (const std::exception& failure) {
        StepFailed();
        MsgBox(QString::fromUtf8(failure.what()), BoxIcon::Warning, AppName);
    }
    DropSiteSnapshot(snapshot);
    return delivered;
}

// Of a run that has brought the site to its destination.
QString DeliveredText() {
    if (SiteStepFailed()) {
        return "La actualización ha terminado con errores.";
    }
    const bool portal = !StepText(PortalStep()).isEmpty();
    if (portal && AbortPublish) {
        return QString("La web se ha publicado. Se ha cancelado el envío a %1.").arg(VSname);
    }
    if (portal && !PortalProblem.isEmpty()) {
        return "La web se ha publicado. " + PortalProblem;
    }
    return "Última actualización: " + LastWebUpdate;
}

// What the page says until the next run; `before` where the run ended before its first step.
QString OutcomeText(const QString& before) {
    if (LastOutcome == PublishOutcome::Delivered) {
        return DeliveredText();
    }
    if (AbortPublish) {
        return "Actualización cancelada.";
    }
    return AnyStepFailed() ? QStringLiteral("No se ha podido actualizar la web.") : before;
}

void Publish() {
    const QString before = frmMain->lblInfo->text();
    ReportActivity("Actualizando la web...");
    ReportRemaining({});
    LastOutcome = RunGeneration() ? PublishOutcome::Delivered : PublishOutcome::NotDelivered;
    publishing = false;
    if (LastOutcome == PublishOutcome::Delivered) {
        RecordSuccess();
    } else {
        EndSteps();
    }
    ReportActivity(OutcomeText(before));
    if (AnyStepFailed()) {
        ReportRemaining({}); // nothing remains of a run that was given up
    }
    if (LastOutcome == PublishOutcome::Delivered && StorageMethod == kStorageLocal) {
        ShowWebPreview(StoragePath + "index.html");
    }
}

} // namespace

void ConnectPublish() {
    ConnectPublishPage();
    for (int index : {kPublishUpdate, kPublishCancel}) {
        QObject::connect(frmMain->cmdUpdateWeb[index], &QPushButton::clicked, frmMain,
                         [index] { cmdUpdateWeb_Click(index); });
    }
}

bool PublishUnderWay() {
    return underWay;
}

void cmdUpdateWeb_Click(int index) {
    // Disabling disturbs the choice, so it is noted and set again.
    const bool wholeSite = frmMain->optAllOrChanged[kPublishAll]->isChecked();
    QRadioButton* chosen = frmMain->optAllOrChanged[wholeSite ? kPublishAll : kPublishChanged];
    if (index == kPublishUpdate && publishing) {
        return;
    }
    const QScopedValueRollback<bool> answering(underWay, underWay || index == kPublishUpdate);
    if (index == kPublishUpdate) {
        publishing = true;
        SetAbortPublish(false);
        ShowBusy(true);
        chosen->setChecked(true);
        Publish();
    } else {
        if (publishing) {
            ReportActivity("Cancelando la actualización...");
        }
        CancelPublish();
    }
    ShowBusy(false);
    chosen->setChecked(true);
}

void CancelPublish() {
    SetAbortPublish(true);
    StepFailed();
}
