// Addresses of the maker, supplied by whoever deploys the program: empty as delivered. With an
// empty entry no link, mail or request is made and generated files carry no address.
//
// The key is what `openssl pkey -pubin -in PUBLIC.pem -outform DER | tail -c 32 | base64` prints.
// The service then keeps a signature beside each installer, made by `openssl pkeyutl -sign -rawin
// -inkey KEY.pem -in update.exe -out update.exe.sig`.
#pragma once

#include <QString>

struct MakerAddresses {
    QString homePage;      // the maker's web site
    QString designPage;    // more designs
    QString designMail;    // design service
    QString telephone;     // sales
    QString portalHost;    // default of the portal's host name
    QString updateService; // host of the update service, or its address with "http(s)://"
    QString updateKey;     // Ed25519 public key of its installers, base64; empty: none is checked
};

// Changed by nobody but tests, which have peers of their own.
extern MakerAddresses Maker;

// Where the update service keeps a file; empty where there is no service.
QString UpdateAddress(const QString& file);
