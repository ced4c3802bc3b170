// Two copies of the program on one store: this process and a real second one.
#include "editor/productlist.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "store/products.h"
#include "store/store.h"
#include "tests/editor/colleagueprocess.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"

#include <QMap>
#include <gtest/gtest.h>

namespace {

constexpr int kQuickEdits = 60;                   // a process, in every run
constexpr int kProducts = 12;                     // that they meet at
constexpr char kEditsVariable[] = "RANDOM_EDITS"; // more of them where it is set

QString Title(int id) {
    return TextsOf(id).section(u'|', 0, 0);
}

QString Colour(int id) {
    return FieldsOf(id).section(u'|', 0, 0);
}

// Saves by a look at the other tab, which lets the product's row go.
void SaveAndStay() {
    frmMain->mnuTabs[1]->trigger();
    frmMain->mnuTabs[0]->trigger();
}

QString ManyProducts() {
    QString rows = "def; 0; T; ESColor\n";
    for (int i = 0; i < kProducts; ++i) {
        rows += QString("product; %1; R-%1; 10; 0; ; 2024-01-01T10:00:00\n"
                        "fields; %1; 0.0\ntexts; Products; %1; ES; 0.0; NULL; NULL\n")
                    .arg(10001 + i);
    }
    return rows;
}

} // namespace

TEST(TwoUsers, TheSecondSeesAHeldProductReadOnlyAndItsEditsNeverReachTheStore) {
    const TestProgram program;
    ColleagueProcess colleague(program.Folder());
    ClickRow(1);
    EXPECT_EQ(colleague.Ask("select 10002"), "readonly");
    EXPECT_EQ(colleague.Ask("type txtFields_0 suyo"), "shown suyo");
    EXPECT_EQ(colleague.Ask("save"), "saved"); // it has nothing to save
    EXPECT_EQ(colleague.Ask("delete"), "refused");
    EXPECT_EQ(colleague.Ask("select 10003"), "held");
    EXPECT_EQ(Colour(10002), "azul");

    ClickRow(2);
    EXPECT_TRUE(frmMain->fraReadOnly->isVisible());
    EXPECT_FALSE(frmMain->Button("Del")->isEnabled());
    EXPECT_TRUE(frmMain->Button("Preview")->isEnabled());
    Type(frmMain->txtMLFields[0], "mío");
    PressKey(frmMain->cboIsNew, Qt::Key_Home);
    PressKey(frmMain->cboIsNew, Qt::Key_Return);
    ClickRow(0);
    EXPECT_FALSE(frmMain->fraReadOnly->isVisible());
    EXPECT_EQ(Title(10003), "Banco");
    EXPECT_EQ(Stored("SELECT IsNew FROM Products WHERE ProductId=10003"), "2");

    colleague.Kill();
    ClickRow(2);
    EXPECT_FALSE(frmMain->fraReadOnly->isVisible()); // a killed copy leaves no lock
}

TEST(TwoUsers, AProductDeletedByTheOtherIsToldAndLeavesTheList) {
    const TestProgram program;
    ColleagueProcess colleague(program.Folder());
    EXPECT_EQ(colleague.Ask("select 10002"), "held");
    EXPECT_EQ(colleague.Ask("delete"), "deleted 10002");
    BoxAnswers answers;
    ClickRow(1);
    ASSERT_EQ(answers.seen.size(), 1U);
    EXPECT_EQ(answers.seen[0].text, "El Producto acaba de ser eliminado por otro usuario");
    EXPECT_EQ(answers.seen[0].title, "Este Producto ya no existe");
    EXPECT_EQ(ListText().count('|'), 1);
    EXPECT_EQ(frmMain->txtProductRef->text(), "C-3");
}

TEST(TwoUsers, TypingAfterASaveThatStayedTakesTheRowAgainWithTheOthersChanges) {
    const TestProgram program;
    ColleagueProcess colleague(program.Folder());
    Type(frmMain->txtFields[0], "ocre");
    SaveAndStay();
    EXPECT_EQ(colleague.Ask("select 10001"), "held");
    colleague.Ask("type txtMLFields_0 Sillita");
    colleague.Ask("save");
    EXPECT_EQ(colleague.Ask("select 10002"), "held");

    Type(frmMain->txtMLFields[1], "De nogal");
    EXPECT_EQ(ControlText(frmMain->txtMLFields[0]), "Sillita");
    EXPECT_EQ(colleague.Ask("select 10001"), "readonly"); // it is ours again
    ClickRow(2);
    EXPECT_EQ(TextsOf(10001), "Sillita|De nogal|Asientos");
    EXPECT_EQ(Colour(10001), "ocre");
}

TEST(TwoUsers, TypingAfterASaveThatStayedShowsAtOnceThatTheOtherHasIt) {
    const TestProgram program;
    ColleagueProcess colleague(program.Folder());
    for (const char* box : {"txtMLFields_0", "txtFields_0", "txtPriceAmount"}) {
        EXPECT_EQ(colleague.Ask("select 10003"), "held");
        ClickRow(1);
        ClickRow(0);
        Type(frmMain->txtZone, QString("Zona de ") + box);
        SaveAndStay();
        EXPECT_EQ(colleague.Ask("select 10001"), "held");
        Type(frmMain->findChild<QWidget*>(box), "9");
        EXPECT_TRUE(frmMain->fraReadOnly->isVisible()) << box;
        EXPECT_FALSE(frmMain->Button("Del")->isEnabled());
    }
    ClickRow(1);
    EXPECT_EQ(Title(10001), "Silla");
}

TEST(TwoUsers, TypingAfterTheOtherHasDeletedTheProductMovesOn) {
    const TestProgram program;
    ColleagueProcess colleague(program.Folder());
    Type(frmMain->txtFields[0], "ocre");
    SaveAndStay();
    EXPECT_EQ(colleague.Ask("select 10001"), "held");
    EXPECT_EQ(colleague.Ask("delete"), "deleted 10001");
    const BoxAnswers answers;
    TypeOn(frmMain->txtFields[0], "s");
    EXPECT_EQ(answers.seen.size(), 1U);
    EXPECT_EQ(frmMain->txtProductRef->text(), "B-2");
}

// Each process tells what it was told: the store must hold, for every product, the last text that
// one of them has saved, and both of its places the same.
TEST(TwoUsers, RandomEditsOfTwoProcessesLeaveWhatTheyWereTold) {
    const MemoryDisk disk;
    const int asked = qEnvironmentVariableIntValue(kEditsVariable);
    const QString edits = QString::number(asked > 0 ? asked : kQuickEdits);
    const TestProgram program(ManyProducts());
    ParkCursor(kCursorProduct); // this process only looks on
    QStringList told;
    {
        ColleagueProcess first(program.Folder());
        ColleagueProcess second(program.Folder());
        first.Send("random 1 " + edits);
        second.Send("random 2 " + edits);
        told = first.AnswersUntil("done") + second.AnswersUntil("done");
    }
    QMap<QString, QMap<QString, QString>> lastOf; // by product, then by process
    int saves = 0;
    for (const QString& line : told) {
        EXPECT_FALSE(line.contains(" ! ")) << qPrintable(line);
        const QString text = line.section(u' ', 1);
        if (text.contains(u'.')) {
            ++saves;
            lastOf[line.section(u' ', 0, 0)][text.section(u'.', 0, 0)] = text;
        }
    }
    EXPECT_GT(saves, edits.toInt() / 2);
    for (int id = 10001; id < 10001 + kProducts; ++id) {
        const QStringList expected = lastOf.value(QString::number(id), {{"0", "0.0"}}).values();
        EXPECT_TRUE(expected.contains(Title(id)))
            << id << ": " << qPrintable(Title(id)) << " of " << qPrintable(expected.join(' '));
        EXPECT_EQ(Title(id), Colour(id)) << id;
    }
    EXPECT_EQ(Stored("SELECT count(*) FROM ProductFields"), QString::number(kProducts));
    EXPECT_EQ(Stored("SELECT count(*) FROM MultiLangFields"), QString::number(3 * kProducts));
    EXPECT_EQ(StoreCheck(), "ok");
}
