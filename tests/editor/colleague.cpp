// Another copy of the program on a shared store, driven by lines on its standard input; it answers
// each with one line. Started with the store's folder; says "ready" when the list is filled.
//
//   select ID         opens the product: "held", "readonly" or "missing"
//   type BOX TEXT     types over a box of the main form: "shown TEXT", what the box holds then
//   save              leaves the product by a click on its row: "saved", or "failed TEXT"
//   add               "added ID"
//   delete            deletes the product in the editor: "deleted ID" or "refused"
//   picture PATH      adds a picture to the product in the editor: "picture ID"
//   unpicture         deletes its first picture: "unpicture ID"
//   compact           closes the store, compacts and opens it: "compacted CODE"
//   arm N             the process dies at its N-th write from here on (killer.cpp): how many
//                     writes were left of those armed before
//   random SEED N     N random edits (twousers_test.cpp): their outcomes, a line each, then "done"
#include "core/settings.h"
#include "editor/productlist.h"
#include "engine/storeerror.h"
#include "forms/mainform.h"
#include "forms/picturesform.h"
#include "platform/controls.h"
#include "platform/notify.h"
#include "store/maintenance.h"
#include "store/openrecord.h"
#include "store/picturerecords.h"
#include "store/store.h"
#include "tests/support/boxes.h"
#include "tests/support/program.h"

#include <dlfcn.h>
#include <functional>
#include <iostream>
#include <random>
#include <string>

namespace {

constexpr int kRandomProducts = 12; // products that random edits meet at

QString Select(const QString& id) {
    const auto found = std::find(ProductIds.begin(), ProductIds.end(), id.toInt());
    if (found == ProductIds.end()) {
        return "missing";
    }
    ClickRow(static_cast<int>(found - ProductIds.begin()));
    if (frmMain->txtProductId->text() != id) {
        return "missing";
    }
    return ProductIsReadOnly() ? "readonly" : "held";
}

QString TypeInto(const QString& name, const QString& text) {
    auto* box = frmMain->findChild<QWidget*>(name);
    Type(box, text);
    return "shown " + ControlText(box);
}

// Whatever the program tells in a box is the answer.
QString Save() {
    const BoxAnswers answers;
    ClickRow(frmMain->SelectedRow());
    return answers.seen.empty() ? "saved" : "failed " + answers.Texts();
}

QString Add() {
    ClickTool("Add");
    return "added " + frmMain->txtProductId->text();
}

QString Delete() {
    const BoxAnswers answers(QMessageBox::Yes);
    const QString id = frmMain->txtProductId->text();
    const int before = ListRowCount();
    ClickTool("Del");
    return ListRowCount() < before ? "deleted " + id : QString("refused");
}

QString AddFile(const QString& path) {
    PicturesForm album(frmMain);
    LoadPictures();
    AddPicture(path);
    return "picture " + album.txtPictureId->text();
}

QString DeleteFile() {
    PicturesForm album(frmMain);
    LoadPictures();
    ShowPictureRecord();
    const QString id = album.txtPictureId->text();
    DeletePicture();
    return "unpicture " + id;
}

QString Compact() {
    ReleaseCurrent();
    CloseStore();
    const int code = CompactStore(DBpath + DBname);
    return OpenStore() == 0 ? "compacted " + QString::number(code) : QString("lost");
}

// By killer.cpp, where it is loaded.
QString Arm(int writes) {
    const auto arm = reinterpret_cast<int (*)(int)>(dlsym(RTLD_DEFAULT, "ArmKiller"));
    return QString::number(arm(writes));
}

void Say(const QString& answer) {
    std::cout << answer.toStdString() << std::endl;
}

// Edits the title of one of the shared products: "ID TEXT" once that is in the store, "ID -" where
// another user has it.
QString RandomEdits(unsigned seed, int count) {
    std::mt19937 random(seed);
    for (int edit = 0; edit < count; ++edit) {
        const QString id = QString::number(10001 + int(random() % kRandomProducts));
        if (Select(id) != u"held") {
            Say(id + " -");
            continue;
        }
        const QString text = QString("%1.%2").arg(seed).arg(edit);
        Type(frmMain->txtMLFields[0], text);
        Type(frmMain->txtFields[0], text);
        const QString outcome = Save();
        Say(outcome == u"saved" ? id + ' ' + text : id + " ! " + outcome);
    }
    return "done";
}

// The rest of the line is given as its words.
QString Obey(const QString& order, const QStringList& words) {
    const QString rest = words.join(u' ');
    const QHash<QString, std::function<QString()>> orders = {
        {"select", [&] { return Select(rest); }},
        {"type", [&] { return TypeInto(words[0], words.mid(1).join(u' ')); }},
        {"save", Save},
        {"add", Add},
        {"delete", Delete},
        {"picture", [&] { return AddFile(rest); }},
        {"unpicture", DeleteFile},
        {"compact", Compact},
        {"arm", [&] { return Arm(rest.toInt()); }},
        {"random", [&] { return RandomEdits(words[0].toUInt(), words[1].toInt()); }},
    };
    return orders[order]();
}

} // namespace

int main(int argc, char** argv) {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    Application application(argc, argv);
    LoadSettings();
    StartScreens(QString::fromLocal8Bit(argv[1]));
    Say("ready");
    std::string line;
    while (std::getline(std::cin, line)) {
        try {
            const QStringList words = QString::fromStdString(line).split(u' ');
            Say(Obey(words[0], words.mid(1)));
        } catch (const StoreError& error) {
            Say("failed " + error.Text());
        }
    }
    EndScreens();
    return 0;
}
