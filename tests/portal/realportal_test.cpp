// The portal's stage of a run against a portal as operators run it: what PHP understands of the
// requests, and that the portal's own list decides what is sent.
#include "tests/support/realportal.h"

#include "core/flavour.h"
#include "core/settings.h"
#include "pictures/productpictures.h"
#include "platform/usersettings.h"
#include "portal/pool.h"
#include "portal/session.h"
#include "site/abort.h"
#include "site/steps.h"
#include "tests/support/catalogue.h"
#include "tests/support/files.h"
#include "tests/support/testpictures.h"

#include <gtest/gtest.h>

namespace {

// The album of 10001 is sorted anew, and the file of its third picture is missing.
constexpr char kAgency[] = R"(
    product; 10001; PI-1; 100.5; 1; Norte; 2026-01-01T10:00:00
    product; 10002; PI-2; NULL; 0; NULL; 2026-01-01T10:00:00
    fields; 10001; 80 m2; 1; ; 2; 0; 1
    texts; Products; 10001; ES; Ático & jardín; Dos líneas:\na+b=c 5 €
    picture; 10001; 1; 2
    picture; 10001; 2; 0
    picture; 10001; 3; 1)";

// Sorted by address, since requests overtake each other. PHP keeps one field of each name.
constexpr const char* kUnderstood[] = {
    "borrar_foto.php id=1234-1000102",
    "borrar_inmueble.php id=1234-10009",
    R"(save_fotos.php MAX_FILE_SIZE=500000&AgentId=1234&ProductId=10002&EditPhotos=)"
    R"(\x0D\x0A7d6132346072c\x0D\x0AContent-Disposition: form-data; name="Sel"\x0D\x0A\x0D\x0A)",
    R"(save_fotos.php image0 image1 image2 MAX_FILE_SIZE=500000&AgentId=1234&ProductId=10001&)"
    R"(EditPhotos=\x0D\x0A7d6132346072c\x0D\x0AContent-Disposition: form-data; name="Sel")"
    R"(\x0D\x0A\x0D\x0A)",
    R"(save_inmueble.php ProductId=10001&ProductRef=PI-1&ShortDesc=\xC1tico &jard\xEDn=&)"
    R"(Superficie=80 m2&TipoInmueble=8&HabInd=&nbsp;=&HabDob=2&Banos=%NO%&Aseos=1&)"
    R"(SaleZoneUsr=Norte&LongDesc=Dos l\xEDneas:\x0D\x0Aa b=c 5 \x80&PriceAmount=100,5&)"
    R"(PriceInPta=16721,793 Ptas&AgentId=1234&Mode=1&EditPhotos=)",
    "save_inmueble.php ProductId=10002&ProductRef=PI-2&ShortDesc=&Superficie=&nbsp;=&"
    "TipoInmueble=1&HabInd=&HabDob=&Banos=&Aseos=&SaleZoneUsr=&LongDesc=&PriceAmount=&"
    "PriceInPta= Ptas&AgentId=1234&Mode=1&EditPhotos="};

std::string Shown(const PortalRequest& request) {
    QByteArray text = request.address + ' ';
    for (const auto& file : request.files) {
        text += file.first + ' ';
    }
    for (const auto& [name, value] : request.fields) {
        text += name + '=' + value + '&';
    }
    return Escaped(text.chopped(1)).toStdString();
}

QByteArray Rendered(TestCatalogue& catalogue, const QString& pictureId) {
    Recordset& pictures = catalogue.Snapshot()[kSnapPictures];
    pictures.SetFilter({{u"PictureId", pictureId}});
    return RenderProductPicture(pictures,
                                {.Name = "imagefind.jpg", .Params = "OPTIMALSIZE=460X345;"})
        .Data;
}

StepState Sync(TestCatalogue& catalogue) {
    SetAbortPublish(false);
    ResetSteps();
    StartSteps();
    PortalSync(catalogue.Snapshot());
    return StateOfStep(StepIndex);
}

} // namespace

TEST(RealPortal, UnderstandsARunAndListsWhatNeedsNoOther) {
    ASSERT_EQ(RealPortal::Obstacle(), "");
    LoadFlavour("/nowhere/");
    SaveSetting(AppName, "Vestalia", "VSurl", "127.0.0.1");
    SaveSetting(AppName, "Params", "DeletedItems", "P10009|I1000102");
    TestCatalogue catalogue(QString(kAgencyFields) + kAgency);
    WriteFile(catalogue.Folder() + "Pic1000101.dat", MakeJpeg(FourFields({1200, 700})));
    WriteFile(catalogue.Folder() + "Pic1000102.dat", MakeJpeg(FourFields({100, 200})));
    SetPortalAccount(kPortalUser, kPortalPassword);
    RealPortal portal;
    PortalPort = portal.Start();
    ASSERT_EQ(Sync(catalogue), StepState::Done) << PortalProblem.toStdString();

    QList<PortalRequest> requests = portal.Requests();
    EXPECT_EQ(requests.takeFirst().Value("email"), kPortalUser);
    ASSERT_EQ(requests.size(), qsizetype(std::size(kUnderstood)));
    std::sort(requests.begin(), requests.end(),
              [](const auto& a, const auto& b) { return Shown(a) < Shown(b); });
    for (qsizetype place = 0; place < requests.size(); ++place) {
        EXPECT_EQ(requests[place].status, 200);
        EXPECT_EQ(Shown(requests[place]), kUnderstood[place]);
    }
    const auto& album = requests[3].files;
    EXPECT_EQ(album[0].second, Rendered(catalogue, "1000102"));
    EXPECT_EQ(album[1].second, "");
    EXPECT_EQ(album[2].second, Rendered(catalogue, "1000101"));

    ClearDeletedItems();
    EXPECT_EQ(Sync(catalogue), StepState::Done);
    EXPECT_EQ(portal.Requests().size(), requests.size() + 2); // the log-in alone
}
