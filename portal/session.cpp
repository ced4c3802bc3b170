#include "portal/session.h"

#include "core/settings.h"
#include "portal/login.h"
#include "portal/photos.h"
#include "portal/pool.h"
#include "portal/products.h"
#include "site/abort.h"
#include "site/steps.h"

QString PortalProblem;

namespace {

// Of the bar, when all has gone.
constexpr int kWholeTask = 5;

// Answers from this status on are about the portal, not about who logs in.
constexpr int kServerErrors = 400;

bool AllJobsDone() {
    return PortalDoneCount >= static_cast<int>(PortalJobs.size());
}

QString LoginProblem() {
    if (AbortPublish) {
        return {};
    }
    if (PortalHostNotFound) {
        return PortalHost.isEmpty()
                   ? QString("No hay ninguna dirección de %1.").arg(VSname)
                   : QString("No se encuentra el servidor de %1 (%2).").arg(VSname, PortalHost);
    }
    if (PortalGivenUp()) {
        return QString("%1 no responde.").arg(VSname);
    }
    if (PortalLoginStatus == 0) {
        return QString("%1 ha cortado la conexión sin contestar.").arg(VSname);
    }
    if (PortalLoginStatus >= kServerErrors) {
        return QString("%1 ha contestado con un error (%2).").arg(VSname).arg(PortalLoginStatus);
    }
    return QString("%1 no admite el usuario o la clave.").arg(VSname);
}

QString DrainProblem() {
    if (AbortPublish) {
        return {};
    }
    return PortalHostNotFound ? LoginProblem() : QString("%1 ha dejado de responder.").arg(VSname);
}

void FailPortal(const QString& problem) {
    PortalProblem = problem;
    StepFailed();
    DropPortalJobs();
    ClosePortalSockets();
}

void SendCatalogue(SiteSnapshot& snapshot) {
    QueueProducts(snapshot);
    QueueDeletions();
    if (!WaitForPortal(AllJobsDone)) {
        FailPortal(DrainProblem());
        return;
    }
    if (PortalUnreadable > 0) {
        PortalProblem = QString("Fotografías que no se han podido leer para %1: %2.")
                            .arg(VSname)
                            .arg(PortalUnreadable);
    }
    StepDone();
    SetProgress(kWholeTask, kWholeTask, 0, kBarTask);
    ClosePortalSockets();
}

} // namespace

void PortalSync(SiteSnapshot& snapshot) {
    ResetPortal(VSurl);
    ResetPortalLogin();
    ResetPortalUnreadable();
    PortalProblem.clear();
    try {
        if (VSuser.isEmpty()) {
            FailPortal(QString("Falta el usuario de %1: Configuración, Otras Webs.").arg(VSname));
        } else if (!PortalLogin(VSuser, VSpass)) {
            FailPortal(LoginProblem());
        } else {
            SendCatalogue(snapshot);
        }
    } catch (const std::exception& failure) {
        FailPortal(QString::fromUtf8(failure.what()));
    }
}
