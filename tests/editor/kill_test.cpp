// The program killed in the middle of its writes: whatever it had acknowledged is there after a new
// start, and nothing half done can be seen.
//
// A real copy of the program dies at one write after another of each action. A usual run takes a
// few of them; with KILL_EVERY_WRITE set, all.
#include "core/settings.h"
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/store.h"
#include "tests/editor/colleagueprocess.h"
#include "tests/support/files.h"
#include "tests/support/program.h"

#include <QFile>
#include <gtest/gtest.h>
#include <set>

namespace {

constexpr int kUsualPoints = 7; // of each action
constexpr int kNever = 1000000; // more writes than any action has
constexpr char kEveryWrite[] = "KILL_EVERY_WRITE";

constexpr char kPictures[] = R"(
    picture; 10003; 1; 0
    picture; 10003; 2; 1
    picture; 10003; 3; 2
    text; Pictures; 1000301; ES; 0; Una
    text; Pictures; 1000301; ES; 1; Foto)";

struct Action {
    const char* name;
    QStringList before; // acknowledged
    const char* act;
};

const Action kActions[] = {
    {"a save",
     {"select 10001", "type txtFields_0 antes", "type txtMLFields_0 antes", "type txtPriceAmount 1",
      "save", "select 10002", "select 10001", "type txtFields_0 después",
      "type txtMLFields_0 después", "type txtPriceAmount 2"},
     "save"},
    {"an add", {"select 10001"}, "add"},
    {"a delete", {"select 10003"}, "delete"},
    {"a picture added", {"select 10003"}, "picture Foto.jpg"},
    {"a picture deleted", {"select 10003"}, "unpicture"},
    {"a compaction", {"select 10001"}, "compact"},
};

// A catalogue of its own for each death.
class Victim {
public:
    explicit Victim(const Action& action) : catalogue(QString(kSmallCatalogue) + kPictures) {
        CloseStore();
        for (const char* name :
             {"Pic1000301.dat", "Pic1000302.dat", "Pic1000303.dat", "Foto.jpg"}) {
            WriteFile(Folder() + name, name);
        }
        colleague = std::make_unique<ColleagueProcess>(Folder(), true);
        for (const QString& line : action.before) {
            EXPECT_NE(colleague->Ask(line), "") << qPrintable(line);
        }
        act = QString(action.act).replace("Foto.jpg", Folder() + "Foto.jpg");
    }

    QString Folder() const { return catalogue.Folder(); }

    // How many writes the action has.
    int CountWrites() {
        colleague->Ask("arm " + QString::number(kNever));
        EXPECT_NE(colleague->Ask(act), "");
        return kNever - colleague->Ask("arm 0").toInt();
    }

    void DieAt(int write) {
        colleague->Ask("arm " + QString::number(write));
        colleague->Ask(act);
        colleague->Kill();
    }

private:
    TestCatalogue catalogue;
    std::unique_ptr<ColleagueProcess> colleague;
    QString act;
};

std::set<int> PointsOf(int writes) {
    std::set<int> points;
    const int count = qEnvironmentVariableIsSet(kEveryWrite) ? writes : kUsualPoints;
    for (int i = 0; i < count; ++i) {
        points.insert(1 + i * (writes - 1) / std::max(count - 1, 1));
    }
    return points;
}

// Fields, texts and the product itself are written in this order: a later one is never new while an
// earlier one is old.
void CheckSave() {
    const QString field = FieldsOf(10001).section(u'|', 0, 0);
    const QString title = TextsOf(10001).section(u'|', 0, 0);
    const QString price = Stored("SELECT PriceAmount FROM Products WHERE ProductId=10001");
    const QString state = field + ' ' + title + ' ' + price;
    const QStringList possible = {"antes antes 1", "después antes 1", "después después 1",
                                  "después después 2"};
    EXPECT_TRUE(possible.contains(state)) << qPrintable(state);
}

// Every product has all of its rows, and every picture its place and its file.
void CheckRows() {
    EXPECT_EQ(Stored("SELECT ProductId FROM Products p WHERE 5 <> (SELECT count(*) FROM "
                     "ProductFields f WHERE f.ProductId=p.ProductId)"),
              "");
    EXPECT_EQ(Stored("SELECT PictureId FROM Pictures p WHERE OrderInForm <> (SELECT count(*) FROM "
                     "Pictures o WHERE o.ProductId=p.ProductId AND o.OrderInForm<p.OrderInForm)"),
              "");
    for (const QString& file :
         Stored("SELECT PicturePath FROM Pictures").split('|', Qt::SkipEmptyParts)) {
        EXPECT_TRUE(QFile::exists(DBpath + file)) << qPrintable(file);
    }
}

// The next new product shows nothing of one that had its number before.
void CheckNextProduct() {
    ClickTool("Add");
    const QString id = frmMain->txtProductId->text();
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]) + ControlText(frmMain->txtMLFields[1]), "");
    EXPECT_EQ(frmMain->txtFields[0]->text(), "blanco");
    EXPECT_EQ(Stored("SELECT count(*) FROM ProductFields WHERE ProductId=" + id), "5");
    EXPECT_EQ(Stored("SELECT count(*) FROM Pictures WHERE ProductId=" + id), "0");
    EXPECT_EQ(Stored("SELECT count(*) FROM MultiLangFields WHERE TableName='Pictures' AND ItemId "
                     "LIKE '" +
                     id + "%'"),
              "0");
}

void CheckAfter(const Action& action, const QString& folder) {
    StartScreens(folder);
    EXPECT_EQ(StoreCheck(), "ok");
    EXPECT_TRUE(std::find(ProductIds.begin(), ProductIds.end(), 10002) != ProductIds.end());
    CheckRows();
    if (QString(action.name) == u"a save") {
        CheckSave();
    }
    CheckNextProduct();
    EndScreens();
}

} // namespace

TEST(Killed, AtAnyWriteOfAnActionNothingAcknowledgedIsLostAndNothingHalfDoneIsSeen) {
    const MemoryDisk disk;
    for (const Action& action : kActions) {
        const int writes = Victim(action).CountWrites();
        ASSERT_GT(writes, 3) << action.name;
        for (const int point : PointsOf(writes)) {
            Victim victim(action);
            victim.DieAt(point);
            CheckAfter(action, victim.Folder());
            ASSERT_FALSE(HasFailure()) << action.name << ", write " << point << " of " << writes;
        }
        std::cout << action.name << ": " << writes << " writes\n";
    }
}
