// The catalogue editor with 10,000 products of 20 fields and 3 texts in 2 languages, against bare
// work of the engine for the same rows: what a user waits for when the list fills, at the next
// product, at a save and at a key in the category box. An argument
// names the one to run: list, next, save or suggestions. Prints medians in milliseconds and, where
// there is a baseline, the ratio to it, both measured in turn.
#include "core/settings.h"
#include "editor/categorybox.h"
#include "editor/productlist.h"
#include "engine/sqltext.h"
#include "engine/statement.h"
#include "engine/storeengine.h"
#include "forms/mainform.h"
#include "platform/controls.h"
#include "platform/events.h"
#include "platform/notify.h"
#include "store/products.h"
#include "store/store.h"
#include "tests/support/program.h"

#include <QTemporaryDir>
#include <cstdio>
#include <ctime>
#include <sqlite3.h>

namespace {

constexpr int kProducts = 10000;
constexpr int kFields = 20;
constexpr int kRounds = 15;          // of everything that takes the whole list
constexpr int kSteps = 200;          // of everything that takes one product
constexpr int kSavedProduct = 12000; // written by the baseline alone

constexpr char kRows[] =
    "WITH RECURSIVE n(i) AS (VALUES(0) UNION ALL SELECT i+1 FROM n WHERE i<%1-1)"
    " INSERT INTO Products SELECT 10001+i, 'REF-'||i, i*100.5, 'EUR', CASE WHEN i-50*(i/50)=0 THEN "
    "2 ELSE "
    "0 END, 'Zona '||(i-50*(i/50)), '2024-03-18T17:05:00' FROM n;"
    "WITH RECURSIVE f(d) AS (VALUES(0) UNION ALL SELECT d+1 FROM f WHERE d<%2-1)"
    " INSERT INTO ProductFields SELECT ProductId, d, 'valor '||d||' de '||ProductId FROM Products, "
    "f"
    " ORDER BY ProductId, d;"
    "INSERT INTO MultiLangFields SELECT 'Products', ProductId, LangCode, FieldDefId,"
    " CASE FieldDefId WHEN 0 THEN 'Piso céntrico muy luminoso, número '||ProductId"
    " WHEN 1 THEN printf('%.*c', 400, 'x') ELSE 'Categoría '||(ProductId-200*(ProductId/200)) END "
    "FROM Products,"
    " (SELECT column1 AS LangCode FROM (VALUES ('ES'), ('EN'))),"
    " (SELECT column1 AS FieldDefId FROM (VALUES (0), (1), (2))) ORDER BY ProductId";

QString Definitions() {
    QString rows = "language; ES; Español; 1\nlanguage; EN; Inglés; 2\n";
    for (int field = 0; field < kFields; ++field) {
        rows += QString("def; %1; T; ESCampo %1\n").arg(field);
    }
    return rows;
}

sqlite3* Handle() {
    return adcData[kCursorScratch].Connection()->Handle();
}

// Of this process's processor, so that others on the machine don't count, or, where the disk does,
// of the clock on the wall.
template <class Work> double Milliseconds(Work work, clockid_t clock = CLOCK_PROCESS_CPUTIME_ID) {
    const auto now = [clock] {
        timespec moment = {};
        clock_gettime(clock, &moment);
        return double(moment.tv_sec) * 1e3 + double(moment.tv_nsec) * 1e-6;
    };
    const double start = now();
    work();
    return now() - start;
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + int(values.size()) / 2, values.end());
    return values[values.size() / 2];
}

void Print(const char* what, const std::vector<double>& ours, const std::vector<double>& plain,
           const char* target) {
    const double median = Median(ours);
    if (plain.empty()) {
        std::printf("%-34s %8.2f ms %31s target %s\n", what, median, "", target);
    } else {
        std::printf("%-34s %8.2f ms   engine %8.2f ms   ratio %4.2f   target %s\n", what, median,
                    Median(plain), median / Median(plain), target);
    }
}

// Every field of every row is taken from the engine and left.
void ReadPlainly(const QString& statement) {
    Statement rows(Handle(), TranslateStatement(statement).sql);
    const int columns = sqlite3_column_count(rows.Handle());
    volatile qint64 sum = 0;
    while (rows.Step()) {
        for (int column = 0; column < columns; ++column) {
            sqlite3_column_text(rows.Handle(), column);
            sum = sum + sqlite3_column_bytes(rows.Handle(), column);
        }
    }
}

// From the statement to the painted list, against the statement alone.
void ListAgainstPlain(const char* what, const std::function<void()>& act) {
    std::vector<double> ours;
    std::vector<double> plain;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(Milliseconds([&act] {
            act();
            ServeEvents();
        }));
        plain.push_back(Milliseconds([] { ReadPlainly(CurrentListSQL); }));
    }
    Print(what, ours, plain, "ratio 2");
}

void ListBenches() {
    ListAgainstPlain("list filled and painted", [] {
        int position = 1;
        RefreshProductList(position, frmMain->txtProductId->text(), true);
    });
    ListAgainstPlain("the same with the editor", [] { RefreshProductList(); });
    ListAgainstPlain("list sorted by text", [] {
        SortProductList(kListSelector, 1, true);
        RefreshProductList();
    });
    ListAgainstPlain("list searched", [] {
        FilterProductList("PriceAmount >= 1000");
        RefreshProductList();
    });
    FilterProductList({});
    RefreshProductList();
}

void NextProduct() {
    std::vector<double> ours;
    for (int row = 1; row <= kSteps; ++row) {
        ours.push_back(Milliseconds([row] {
            PressKey(frmMain->lstProductList, Qt::Key_Down);
            ServeEvents();
        }));
        if (frmMain->txtProductId->text().toInt() != ProductIds[row]) {
            std::printf("the product was not loaded\n");
        }
    }
    Print("next product, unchanged, painted", ours, {}, "30 ms");
}

// The three commits of a save as an engine's user would write them.
void SavePlainly(int round) {
    const auto commit = [](const QString& update, int rows, int value) {
        Transaction transaction(Handle());
        for (int row = 0; row < rows; ++row) {
            Statement run(Handle(), update.arg(value).arg(row).toUtf8());
            run.Step();
        }
        transaction.Commit();
    };
    commit(QString("UPDATE ProductFields SET FieldValue='valor %1' WHERE ProductId=%3 AND "
                   "FieldDefId=%2")
               .replace("%3", QString::number(kSavedProduct)),
           kFields, round);
    commit(
        QString("UPDATE MultiLangFields SET FieldValue='texto %1' WHERE TableName='Products' AND "
                "ItemId='%3' AND LangCode='ES' AND FieldDefId=%2")
            .replace("%3", QString::number(kSavedProduct)),
        3, round);
    commit(QString("UPDATE Products SET PriceAmount=%1, LastUpdate='2024-03-18 %1' WHERE "
                   "ProductId=%3+0*%2")
               .replace("%3", QString::number(kSavedProduct)),
           1, round);
}

void SaveProductAgainstPlain() {
    std::vector<double> ours;
    std::vector<double> plain;
    for (int round = 1; round <= kSteps; ++round) {
        ReopenProduct();
        for (int field = 0; field < kFields; ++field) {
            frmMain->txtFields[field]->setText(QString("valor %1").arg(round));
        }
        for (QWidget* text : frmMain->txtMLFields) {
            SetControlText(text, QString("texto %1").arg(round));
        }
        frmMain->txtPriceAmount->setText(QString::number(round));
        ours.push_back(Milliseconds([] { SaveCurrentProduct(); }, CLOCK_MONOTONIC));
        plain.push_back(Milliseconds([round] { SavePlainly(round); }, CLOCK_MONOTONIC));
    }
    Print("save of everything", ours, plain, "ratio 1.3");
}

void Suggestions() {
    std::vector<double> ours;
    for (const char* typed : {"", "C", "Categoría 1", "a'", "zzz"}) {
        frmMain->txtMLFields_2->setText(typed);
        for (int round = 0; round < kRounds; ++round) {
            ours.push_back(Milliseconds([] {
                ZoneSuggest(Qt::Key_A, {});
                ServeEvents();
            }));
        }
        Print(*typed == 0 ? "suggestions, all" : "suggestions, typed", ours, {}, "20 ms");
        ours.clear();
    }
}

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    Application application(argc, argv);
    const TestCatalogue catalogue(Definitions());
    ChangeStore(QString(kRows)
                    .replace("%1", QString::number(kProducts))
                    .replace("%2", QString::number(kFields)));
    StartScreens(catalogue.Folder());

    const std::pair<const char*, void (*)()> benches[] = {{"list", ListBenches},
                                                          {"next", NextProduct},
                                                          {"save", SaveProductAgainstPlain},
                                                          {"suggestions", Suggestions}};
    for (const auto& [name, run] : benches) {
        if (argc < 2 || qstrcmp(argv[1], name) == 0) {
            run();
        }
    }
    EndScreens();
    return 0;
}
