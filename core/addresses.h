// Addresses of the maker, supplied by whoever deploys the program: empty as delivered. With an
// empty entry no link, mail or request is made and generated files carry no address.
#pragma once

#include <QString>

struct MakerAddresses {
    QString homePage;      // the maker's web site
    QString designPage;    // more designs
    QString designMail;    // design service
    QString telephone;     // sales
    QString portalHost;    // default of the portal's host name
    QString updateService; // host of the update service
};

extern const MakerAddresses Maker;
