// The button "Actualizar ahora" from the first click to the end of the run: what has reached the
// destination, what is remembered and what the user has before him, for each way a run can end.
#include "app/workflow.h"

#include "app/mainscreen.h"
#include "app/publishpage.h"
#include "core/flavour.h"
#include "core/settings.h"
#include "editor/listrows.h"
#include "forms/mainform.h"
#include "forms/webpreviewform.h"
#include "platform/usersettings.h"
#include "portal/pool.h"
#include "publish/ftp.h"
#include "publish/generate.h"
#include "publish/md5control.h"
#include "site/abort.h"
#include "site/outputs.h"
#include "site/steps.h"
#include "site/template.h"
#include "tests/support/boxes.h"
#include "tests/support/files.h"
#include "tests/support/ftpserver.h"
#include "tests/support/portalpeer.h"
#include "tests/support/program.h"
#include "tests/support/templatebuilder.h"
#include "text/dates.h"
#include "transfer/transfer.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <gtest/gtest.h>
#include <map>

namespace {

constexpr char kLongAgo[] = "01/01/2020 00:00:00";
constexpr char kPending[] = "P3|I10001";

constexpr char kHint[] = "Genera las páginas de su catálogo y las lleva a su destino.";
constexpr char kCancelled[] = "Actualización cancelada.";
constexpr char kNotDone[] = "No se ha podido actualizar la web.";

// The order in which the generator makes the files is that in which they are sent.
const std::string kSite =
    "web.css indexES.html index.html indexEN.html p10002ES.html p10002EN.html "
    "p10001ES.html p10001EN.html listES.js listEN.js";

constexpr int kSiteFiles = 10;

TemplateBuilder Design() {
    TemplateBuilder design;
    design.Emphasis(1, 0)
        .Add(kKindHomePage, "", "", "<p>%%TOP%%</p>")
        .Add(kKindCopiedFile, "web.css", "", "p { margin: 0 }")
        .Add(kKindProductPage, "p%%PRID%%%LID%.html", "", "<p>%%PRODUCTREF%%: %%PRICEAMOUNT%%</p>")
        .Add(kKindDataList, "list%LID%.js", "", "ids=%%LISTPRODUCTID%%;prices=%%LISTPRICEAMOUNT%%;")
        .AddList(kKindEmphasis1, "%%TOP%%", "", "%%PRID%% %%PRICEAMOUNT%%", "")
        .AddList(kKindEmphasis2, "%%MORE%%", "", "", "");
    return design;
}

// What a run came to; its columns in endings.txt follow the name and the files sent.
struct Outcome {
    std::string steps; // a letter a visible step: t to do, c current, d done, f failed
    std::string boxes; // "icon: text" of each
    std::string info;  // lblInfo; the date of a success is left out
    int bars;          // the two bars as value of the first * 100 + value of the second
    bool recorded;     // LastWebUpdate set and DeletedItems cleared, both kept in settings.ini
    bool filesKept;    // OutputFiles still hold the site
};

Outcome OutcomeOf(const QStringList& row) {
    return {row[2].toStdString(), row[3].toStdString(), row[4].toStdString(),
            row[5].toInt(),       row[6] == "yes",      row[7] == "yes"};
}

class Workflow : public testing::Test {
protected:
    explicit Workflow(Trade trade = Trade::Generic) : program(kSmallCatalogue, trade) {}

    void SetUp() override {
        ConnectPublish();
        SetFTP("127.0.0.1", "/web", "ana", "clave");
        Begin();
        SelectMainTab(kTabPublish);
        QObject::connect(&ineFTPSend(), &TransferClient::StateChanged, frmMain, [this] {
            if (whileSending && server.Record().Count("STOR") >= 2) {
                Do(whileSending);
            }
        });
        QObject::connect(frmMain->prbProgress[1], &QProgressBar::valueChanged, frmMain,
                         [this](int value) {
                             if (atOverall && value == overall) {
                                 Do(atOverall);
                             }
                         });
        QObject::connect(&clock, &QTimer::timeout, frmMain, [this] {
            if (whenServerWaits && server.Record().Count(stallsAt) > 0) {
                Do(whenServerWaits);
            }
        });
        clock.start(1);
    }

    // As before the first run.
    void Begin() {
        FTPControlPort = server.Port();
        server.Behave();
        server.ForgetCommands();
        Design().Write(program.Folder(), "Default.zdt");
        SetStorage(kStorageFTP, {});
        QFile::remove(program.Folder() + "md5control.txt");
        ResetControlFile();
        ClearOutputFiles();
        ResetSteps();
        SetProgress(0, 10, 0, 0);
        SetProgress(0, 10, 0, 1);
        Remember(kLongAgo, kPending);
        frmMain->lblInfo->setText(kHint);
        boxes.seen.clear();
    }

    static void Remember(const QString& lastUpdate, const QString& deleted) {
        SetLastWebUpdate(lastUpdate);
        ClearDeletedItems();
        for (const QString& item : deleted.split(u'|', Qt::SkipEmptyParts)) {
            AddDeletedItem(DeletedItem(item[0].toLatin1()), item.mid(1));
        }
        SaveSettings();
    }

    // Once.
    static void Do(std::function<void()>& act) {
        const auto once = std::exchange(act, nullptr);
        once();
    }

    // The run doesn't wait for the good-bye.
    static void EndSession() {
        EXPECT_TRUE(QTest::qWaitFor([] { return !ineFTPSend().StillExecuting(); }));
    }

    static void Publish() { Click(frmMain->cmdUpdateWeb[kPublishUpdate]); }
    static void Cancel() { Click(frmMain->cmdUpdateWeb[kPublishCancel]); }

    std::string Boxes() const {
        QStringList texts;
        for (const SeenBox& box : boxes.seen) {
            EXPECT_EQ(box.title, AppName);
            texts += (box.icon == QMessageBox::Warning ? "warning: " : "information: ") + box.text;
        }
        return texts.join(u'|').toStdString();
    }

    // Names that the server has been sent since its commands were forgotten, in order.
    std::string Sent() const {
        QStringList names;
        for (const QByteArray& command : server.Record().commands) {
            if (command.startsWith("STOR ")) {
                names += QString::fromLatin1(command.mid(5));
            }
        }
        return names.join(u' ').toStdString();
    }

    // Names in the control file, in order.
    std::string Recorded() const {
        QStringList names;
        for (QByteArray rest = ReadFile(program.Folder() + "md5control.txt"); rest.size() > 60;
             rest.remove(0, 94)) {
            names += QString::fromLatin1(rest.left(60)).trimmed();
        }
        return names.join(u' ').toStdString();
    }

    // What happens in each of the runs of endings.txt.
    void Prepare(const QString& ending) {
        const auto cancelAt = [this](int value) {
            overall = value;
            atOverall = Cancel;
        };
        const std::map<QString, std::function<void()>> prepare = {
            {"nothing listens", [] { FTPControlPort = 1; }},
            {"wrong password", [this] { server.Answer("PASS", {"< 530 Who?"}); }},
            {"third file refused",
             [this] { whileSending = [this] { server.Answer("STOR", {"< 553 Not that name"}); }; }},
            {"no design", [] { QFile::remove(TemplPath); }},
            {"cancelled between files", [this] { whileSending = Cancel; }},
            {"cancelled when all is sent", [&] { cancelAt(7); }},
            {"cancelled while pages are made", [&] { cancelAt(2); }},
            {"cancelled before it begins",
             [] { QMetaObject::invokeMethod(frmMain, Cancel, Qt::QueuedConnection); }},
        };
        prepare.at(ending)();
    }

    void Expect(const Outcome& outcome) const {
        EXPECT_EQ(StepLetters(), outcome.steps);
        EXPECT_EQ(Boxes(), outcome.boxes);
        EXPECT_EQ(frmMain->lblInfo->text().section(u':', 0, 0).toStdString(), outcome.info);
        EXPECT_EQ(frmMain->prbProgress[0]->value() * 100 + frmMain->prbProgress[1]->value(),
                  outcome.bars);
        EXPECT_EQ(frmMain->prbProgress[1]->maximum(), 10);
        EXPECT_EQ(!OutputFiles.empty() && !OutputFiles[0].Name.isEmpty(), outcome.filesKept);
        ExpectSettings(outcome.recorded);
        ExpectScreens(false);
    }

    static void ExpectSettings(bool recorded) {
        const std::optional<QDateTime> last = ReadDate(LastWebUpdate);
        ASSERT_TRUE(last);
        EXPECT_EQ(last->secsTo(Now()) < 60, recorded) << LastWebUpdate.toStdString();
        EXPECT_EQ(DeletedItems, recorded ? "" : kPending);
        EXPECT_EQ(GetSetting(AppName, "Params", "LastWebUpdate"), LastWebUpdate);
        EXPECT_EQ(GetSetting(AppName, "Params", "DeletedItems"), DeletedItems);
    }

    static void ExpectScreens(bool busy) {
        const QPushButton* shown = frmMain->cmdUpdateWeb[busy ? kPublishCancel : kPublishUpdate];
        EXPECT_TRUE(shown->isVisible());
        EXPECT_EQ(frmMain->focusWidget(), shown);
        EXPECT_FALSE(frmMain->cmdUpdateWeb[busy ? kPublishUpdate : kPublishCancel]->isVisible());
        for (const QWidget* control :
             std::initializer_list<QWidget*>{frmMain->cmdHosting, frmMain->chkShowPreview,
                                             frmMain->fraTabs[0], frmMain->txtProductRef}) {
            EXPECT_EQ(control->isEnabled(), !busy) << control->objectName().toStdString();
        }
        EXPECT_FALSE(frmMain->txtFields.back()->isEnabled()) << "a box without a field";
        EXPECT_EQ(frmMain->mnuConfig[0]->isEnabled(), !busy);
    }

    MemoryDisk memory;
    FtpServer server;
    TestProgram program;
    BoxAnswers boxes;
    // What happens once, and when: with the second file sent, as the overall bar reaches a value,
    // or as an event of its own while the server stands still.
    std::function<void()> whileSending;
    std::function<void()> atOverall;
    int overall = 0;
    std::function<void()> whenServerWaits;
    QByteArray stallsAt = "STOR"; // the command that it leaves without a reply
    QTimer clock;
};

// An agency, whose runs go on to the portal.
class Agency : public Workflow {
protected:
    Agency() : Workflow(Trade::RealEstate) {}

    ~Agency() override { ClosePortalSockets(); }

    // The site goes to the FTP server, the portal is the peer.
    void PublishAs(const QString& user, const PortalPeer::Manners& manners) {
        peer = std::make_unique<PortalPeer>(manners);
        PortalPort = peer->Port();
        SaveSetting(AppName, "Vestalia", "VSurl", "127.0.0.1");
        LoadSettings();
        SetFTP("127.0.0.1", "/web", "ana", "clave");
        SetStorage(kStorageFTP, {});
        SetPortalAccount(user, "clave");
        SelectMainTab(kTabPublish);
        Publish();
    }

    std::unique_ptr<PortalPeer> peer;
};

PortalManners Portal(int /*connection*/) {
    return {.answer = LoginPage({}, "<!--AgentId=7-->")};
}

} // namespace

TEST_F(Workflow, ASiteIsSentOnceAndThenOnlyWhatNamesAChangedProduct) {
    whileSending = [] {
        ExpectScreens(true);
        EXPECT_EQ(StepLetters(), "dddc");
        EXPECT_TRUE(frmMain->lblInfo->text().startsWith("Enviando "));
    };
    Publish();
    EXPECT_FALSE(whileSending);
    EXPECT_EQ(Sent(), kSite);
    EXPECT_EQ(Recorded(), kSite);
    EXPECT_EQ(frmMain->lblRemaining->text(), "0 segundos");
    EXPECT_EQ(server.Record().files.size(), kSiteFiles);
    EXPECT_TRUE(frmMain->optAllOrChanged[0]->isChecked());
    Expect({"dddd", "", "Última actualización", 910, true, false});

    EndSession();
    const QByteArray home = server.Record().files["index.html"];
    server.ForgetCommands();
    Remember(kLongAgo, kPending); // every page is made again, and none differs
    Click(frmMain->optAllOrChanged[1]);
    Publish();
    EXPECT_EQ(Sent(), "");
    EndSession();
    EXPECT_EQ(server.Record().Count("QUIT"), 1);
    EXPECT_TRUE(frmMain->optAllOrChanged[1]->isChecked());
    Expect({"dddd", "", "Última actualización", 910, true, false});

    SelectMainTab(kTabCatalogue);
    ClickRow(1);
    Type(frmMain->txtPriceAmount, "77");
    SelectMainTab(kTabPublish);
    EXPECT_EQ(StepLetters(), "dddd");
    ResetControlFile(); // as at another start of the program
    Publish();
    EXPECT_EQ(Sent(), "indexES.html index.html indexEN.html p10002ES.html p10002EN.html listES.js "
                      "listEN.js");
    EXPECT_TRUE(server.Record().files["index.html"] != home);
    EXPECT_EQ(Recorded(), kSite);
}

TEST_F(Workflow, EachWayARunIsRefusedOrCancelledLeavesWhatItShould) {
    for (const QStringList& row : ReadTable(ENDINGS, "endings")) {
        SCOPED_TRACE(row[0].toStdString());
        Begin();
        Prepare(row[0]);
        Publish();
        const std::string sent = row[1] == "all" ? kSite : row[1].toStdString();
        EXPECT_EQ(Sent(), sent);
        EXPECT_EQ(Recorded(), sent);
        EXPECT_EQ(frmMain->lblRemaining->text(), "");
        Expect(OutcomeOf(row));
    }
}

TEST_F(Workflow, ASiteSavedInAFolderIsShownAndAnErrorThereIsNot) {
    const QString site = program.Folder() + "web/";
    const auto publishTo = [this](const QString& folder) {
        Begin();
        SetStorage(kStorageLocal, folder);
        SelectMainTab(kTabPublish);
        Publish();
    };
    publishTo(program.Folder() + "no/such/");
    Expect({"ddf", "", kNotDone, 910, false, false});

    QString shown;
    WhenDialogOpens([&shown] {
        ASSERT_NE(frmWebPreview, nullptr);
        const auto views = frmWebPreview->wbPreview->findChildren<QWidget*>();
        ASSERT_FALSE(views.isEmpty());
        EXPECT_TRUE(QTest::qWaitFor([&] {
            shown = views[0]->property("url").toUrl().toLocalFile();
            return !shown.isEmpty();
        }));
    });
    publishTo(site);
    EXPECT_EQ(shown.toStdString(), (site + "index.html").toStdString());
    EXPECT_EQ(QDir(site).entryList(QDir::Files).size(), kSiteFiles);
    Expect({"ddd", "", "Última actualización", 910, true, false});

    QFile::remove(site + "index.html");
    QFile::remove(site + "web.css");
    QFile::setPermissions(site + "indexES.html", QFile::ReadOwner);
    publishTo(site);
    EXPECT_TRUE(QFile::exists(site + "web.css"));
    EXPECT_FALSE(QFile::exists(site + "index.html"));
    Expect({"ddf", "", kNotDone, 910, false, false});

    overall = 2;
    atOverall = Cancel;
    publishTo(program.Folder() + "cancelled/");
    EXPECT_FALSE(QFile::exists(program.Folder() + "cancelled"));
    Expect({"ftt", "", kCancelled, 202, false, true});
    EXPECT_EQ(server.Record().sessions, 0);
    EXPECT_EQ(Recorded(), "");
}

// The screens come back at once, the run ends with the file under way. What the user does in
// between must neither revive the run nor take its files.
TEST_F(Workflow, ACancelWhileTheServerStandsStillGivesTheScreensBackAtOnce) {
    server.Answer("STOR", {"< 150 Go on", "= *"});
    whenServerWaits = [this] {
        EXPECT_EQ(StepLetters(), "dddc");
        Cancel();
        EXPECT_EQ(StepLetters(), "dddf");
        ExpectScreens(false);
        Publish();
        ExpectScreens(false);
        EXPECT_EQ(frmMain->lblInfo->text(), "Cancelando la actualización...");
        SelectMainTab(kTabCatalogue);
        ClickTool("Preview");
        SelectMainTab(kTabPublish);
        EXPECT_EQ(StepLetters(), "dddf");
        server.Behave();
        server.Play({"! reset"});
    };
    Publish();
    EXPECT_EQ(server.Record().Count("STOR"), 1);
    EXPECT_EQ(Recorded(), "web.css");
    EXPECT_EQ(boxes.seen.size(), 1U) << Boxes(); // no preview
    boxes.seen.clear();
    Expect({"dddf", "", kCancelled, 7, false, true});
}

TEST_F(Workflow, ACancelWhileConnectingShowsBeforeTheServerHasAnswered) {
    server.Answer("USER", {"< 331-Wait"});
    stallsAt = "USER";
    whenServerWaits = [this] {
        EXPECT_EQ(StepLetters(), "ddct");
        Cancel();
        EXPECT_EQ(StepLetters(), "ddft");
        ExpectScreens(false);
        server.Behave();
        server.Play({"! reset"});
    };
    Publish();
    EXPECT_EQ(server.Record().Count("STOR"), 0);
    EXPECT_EQ(Recorded(), "");
    Expect({"ddff", "", kCancelled, 907, false, true});
}

// The files in memory are the preview's until it has ended.
TEST_F(Workflow, ARunThatIsAskedForWhileAPreviewIsMadeDoesNotBegin) {
    QObject user;
    bool pressed = false;
    QObject::connect(frmMain->prbProgress[kBarTask], &QProgressBar::valueChanged, &user, [&] {
        if (!std::exchange(pressed, true)) {
            Publish();
        }
    });
    SiteSnapshot snapshot;
    TakeSiteSnapshot(snapshot);
    const QString page = GeneratePreviewPage({PreviewPage::Product, "10001"}, TemplPath, snapshot);
    EXPECT_TRUE(pressed);
    EXPECT_EQ(QFileInfo(page).fileName(), "p10001ES.html");
    EXPECT_TRUE(QFileInfo(page).isFile());
    EXPECT_EQ(StepLetters(), "tttt");
    EXPECT_EQ(frmMain->lblInfo->text(), kHint);
    EXPECT_EQ(Boxes(), "");
    EXPECT_EQ(LastWebUpdate, kLongAgo);
}

TEST_F(Workflow, ThePageSaysWhatGoesWhereAndHowTheStepsOfThatWayStand) {
    Publish();
    EndSession();
    EXPECT_EQ(StepLetters(), "dddd");
    const QString folder = "/" + QString(70, u'a').replace(10, 1, "z");
    SetStorage(kStorageLocal, folder);
    SetTemplate(TemplPath, 0, 7);
    RefreshPublishTab(false);
    EXPECT_EQ(StepLetters(), "ddt");
    EXPECT_EQ(frmMain->lblWhereSave[0]->text(), "Carpeta de acceso local:");
    EXPECT_EQ(frmMain->lblWhereSave[1]->text(), folder.left(22) + "..." + folder.right(22));
    EXPECT_EQ(frmMain->lblWhereSave[1]->toolTip(), folder);
    EXPECT_EQ(frmMain->lblNumProducts[0]->text(),
              "Productos Anunciados:   " + QString::number(ListRowCount()));
    EXPECT_EQ(frmMain->lblNumProducts[1]->text(),
              QString("Productos Destacados:   %1 de 7").arg(FeaturedCount));
    TemplateBuilder().Name("Otro").Write(program.Folder(), "Default.zdt");
    RefreshPublishTab(true);
    EXPECT_EQ(frmMain->lblTemplName->text(), "Otro");
}

TEST_F(Agency, ThePortalsOutcomeStandsInItsOwnStepAndNotInThatOfTheSite) {
    using End = PortalManners::End;
    const auto silent = [](int connection) {
        return connection == 0 ? Portal(0) : PortalManners{.answer = "", .end = End::StayOpen};
    };
    QObject::connect(&clock, &QTimer::timeout, frmMain, [this] {
        if (frmMain->lblInfo->text() == "Enviando a Vestalia: 0 de 6" && !AbortPublish &&
            peer->Requests().size() == 7) {
            EXPECT_EQ(StepLetters(), "ddddc");
            ExpectScreens(true);
            Cancel();
        }
    });
    for (const QStringList& row : ReadTable(ENDINGS, "of an agency")) {
        SCOPED_TRACE(row[0].toStdString());
        const bool isSilent = row[0] == "cancelled in silence";
        Begin();
        if (row[0] == "wrong password") {
            Prepare(row[0]);
        }
        PublishAs(row[0] == "no user" ? "" : "ana", isSilent ? silent : Portal);
        EXPECT_EQ(peer->Requests().size(), row[1].toInt());
        Expect(OutcomeOf(row));
        EndSession();
    }
}
