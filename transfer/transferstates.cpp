#include "transfer/transferstates.h"

#include <curl/curl.h>

int FailureNumber(int curlCode) {
    switch (curlCode) {
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_FTP_ACCEPT_TIMEOUT:
        return kErrTransferTimeout;
    case CURLE_COULDNT_RESOLVE_HOST:
        return kErrHostNotFound;
    case CURLE_COULDNT_CONNECT:
        return kErrCannotConnect;
    case CURLE_LOGIN_DENIED:
        return kErrLogin;
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
        return kErrConnectionReset;
    case CURLE_ABORTED_BY_CALLBACK:
        return kErrConnectionAborted;
    default:
        return kErrServerReply;
    }
}

QString FailureText(int number) {
    switch (number) {
    case kErrTransferTimeout:
        return "El servidor no responde";
    case kErrHostNotFound:
        return "No se encuentra el servidor";
    case kErrLogin:
        return "El servidor no admite el usuario o la contraseña";
    case kErrCannotConnect:
        return "No se puede conectar con el servidor";
    case kErrConnectionAborted:
        return "Se ha interrumpido la conexión";
    case kErrConnectionReset:
        return "El servidor ha cortado la conexión";
    default:
        return "El servidor ha contestado de forma inesperada";
    }
}
