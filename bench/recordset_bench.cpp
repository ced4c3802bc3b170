// Cursors over a catalogue of 10,000 products in four languages: the product list and the texts of
// a snapshot against bare reading of the same rows by the engine, filters and saves.
#include "engine/recordset.h"
#include "engine/sqltext.h"
#include "engine/statement.h"
#include "engine/storeengine.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <ctime>
#include <sqlite3.h>

namespace {

constexpr int kProducts = 10000;
constexpr int kFirstProduct = 10001;
constexpr int kFilters = 1000; // different ones in turn

constexpr char kTables[] =
    "CREATE TABLE Products (ProductId INTEGER PRIMARY KEY, ProductRef TEXT COLLATE SPANISH,"
    " PriceAmount REAL NOT NULL DEFAULT 0, PriceCurrency TEXT COLLATE NOCASE DEFAULT 'EUR',"
    " IsNew INTEGER NOT NULL DEFAULT 0, SaleZone TEXT COLLATE SPANISH, LastUpdate TEXT);"
    "CREATE TABLE MultiLangFields (TableName TEXT COLLATE NOCASE NOT NULL,"
    " ItemId TEXT COLLATE NOCASE NOT NULL, LangCode TEXT COLLATE NOCASE NOT NULL,"
    " FieldDefId INTEGER NOT NULL, FieldValue TEXT COLLATE SPANISH);"
    "CREATE INDEX ByItem ON MultiLangFields (TableName, ItemId, LangCode, FieldDefId);"
    "WITH RECURSIVE n(i) AS (VALUES(0) UNION ALL SELECT i+1 FROM n WHERE i<%1)"
    " INSERT INTO Products SELECT %2+i, 'REF-'||i, i*100.5, 'EUR', i%3, 'Zona '||(i%50),"
    " '2024-03-18T17:05:00' FROM n;"
    "INSERT INTO MultiLangFields SELECT 'Products', ProductId, LangCode, FieldDefId,"
    " CASE FieldDefId WHEN 0 THEN 'Piso céntrico muy luminoso, número '||ProductId"
    " WHEN 1 THEN printf('%.*c', 400, 'x') ELSE SaleZone END FROM Products,"
    " (SELECT column1 AS LangCode FROM (VALUES ('ES'), ('EN'), ('DE'), ('FR'))),"
    " (SELECT column1 AS FieldDefId FROM (VALUES (0), (1), (2)))";

const QString kList = QStringLiteral(
    "SELECT ProductId, ProductRef, PriceAmount, IsNew, SaleZone, FieldValue AS MLShortDesc FROM "
    "Products p LEFT JOIN MultiLangFields ml ON (cstr(p.ProductId)=ml.ItemId AND "
    "ml.TableName='Products' AND ml.LangCode='ES' AND ml.FieldDefId=0)");
const QString kTexts = QStringLiteral("SELECT * FROM MultiLangFields ORDER BY FieldDefId");

// Made once for all benches.
const std::shared_ptr<StoreConnection>& Catalogue() {
    static const QTemporaryDir folder;
    static const std::shared_ptr<StoreConnection> connection = [] {
        auto made = StoreConnection::Create(folder.filePath("Banco.zdb"));
        made->Execute(QString(kTables).arg(kProducts - 1).arg(kFirstProduct));
        return made;
    }();
    return connection;
}

Recordset Cursor(const QString& statement) {
    Recordset cursor;
    cursor.SetConnection(Catalogue());
    cursor.SetSource(statement);
    cursor.Open();
    return cursor;
}

// Every field of every row is taken from the engine and left.
void ReadPlainly(sqlite3* handle, const QByteArray& sql) {
    const Statement statement(handle, sql);
    sqlite3_stmt* rows = statement.Handle();
    const int columns = sqlite3_column_count(rows);
    qint64 sum = 0;
    while (sqlite3_step(rows) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column) {
            switch (sqlite3_column_type(rows, column)) {
            case SQLITE_INTEGER:
                sum += sqlite3_column_int64(rows, column);
                break;
            case SQLITE_FLOAT:
                sum += static_cast<qint64>(sqlite3_column_double(rows, column));
                break;
            case SQLITE_TEXT:
                benchmark::DoNotOptimize(sqlite3_column_text(rows, column));
                sum += sqlite3_column_bytes(rows, column);
                break;
            default:
                break;
            }
        }
    }
    benchmark::DoNotOptimize(sum);
}

// Of this process, so that others on the machine don't count.
double ProcessorSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// Both ways in turn; the time counted is the cursor's, "ratio" is it over bare reading.
void FillAgainstPlain(benchmark::State& state, const QString& statement) {
    const QByteArray sql = TranslateStatement(statement).sql;
    Recordset cursor = Cursor(statement);
    double plain = 0;
    double filled = 0;
    for (auto _ : state) {
        const double start = ProcessorSeconds();
        ReadPlainly(Catalogue()->Handle(), sql);
        const double middle = ProcessorSeconds();
        cursor.Requery();
        const double end = ProcessorSeconds();
        plain += middle - start;
        filled += end - middle;
        state.SetIterationTime(end - middle);
    }
    state.counters["rows"] = cursor.RecordCount();
    state.counters["ratio"] = filled / plain;
}

void FillProductList(benchmark::State& state) {
    FillAgainstPlain(state, kList);
}

void FillSnapshotTexts(benchmark::State& state) {
    FillAgainstPlain(state, kTexts);
}

// Ids of kFilters products, as the generator has them.
std::vector<QString> ProductIds() {
    std::vector<QString> ids;
    ids.reserve(kFilters);
    for (int product = 0; product < kFilters; ++product) {
        ids.push_back(QString::number(kFirstProduct + product * 7));
    }
    return ids;
}

// What the generator does for the texts of each page.
void FilterTextsOfOneProduct(benchmark::State& state) {
    Recordset texts = Cursor(kTexts);
    const std::vector<QString> ids = ProductIds();
    const int table = texts.Column(u"TableName");
    const int item = texts.Column(u"ItemId");
    texts.SetFilter({{table, {}}, {item, {}}});
    size_t next = 0;
    qint64 length = 0;
    for (auto _ : state) {
        texts.SetFilter({{table, u"Products"}, {item, ids[next]}});
        length += texts.Text(u"FieldValue").size();
        next = (next + 1) % ids.size();
    }
    benchmark::DoNotOptimize(length);
}

void FilterByProductId(benchmark::State& state) {
    Recordset products = Cursor("SELECT * FROM Products");
    const std::vector<QString> ids = ProductIds();
    products.SetFilter({{u"ProductId", {}}});
    size_t next = 0;
    for (auto _ : state) {
        products.SetFilter({{u"ProductId", ids[next]}});
        benchmark::DoNotOptimize(products.Number(u"PriceAmount"));
        next = (next + 1) % ids.size();
    }
}

void IndexTexts(benchmark::State& state) {
    Recordset texts = Cursor(kTexts);
    for (auto _ : state) {
        Recordset clone = texts.Clone();
        clone.SetFilter({{u"TableName", u"Products"},
                         {u"ItemId", u"10001"},
                         {u"LangCode", u"EN"},
                         {u"FieldDefId", u"0"}});
        benchmark::DoNotOptimize(clone.RecordCount());
    }
}

void SearchWordInTexts(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            Cursor("SELECT DISTINCT ItemId FROM MultiLangFields WHERE TableName='Products' and "
                   "FieldValue like '%CÉNTRICO MUY%'")
                .RecordCount());
    }
}

void SortListByText(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(Cursor(kList + " ORDER BY FieldValue ASC").RecordCount());
    }
}

// The texts of one product: three rows in one transaction. Mostly the disk's time.
void SaveThreeTexts(benchmark::State& state) {
    Recordset rows = Cursor("SELECT * FROM MultiLangFields WHERE TableName='Products' AND "
                            "ItemId='15000' AND LangCode='ES' ORDER BY FieldDefId");
    int round = 0;
    for (auto _ : state) {
        ++round;
        for (rows.MoveFirst(); rows.HasRow(); rows.MoveNext()) {
            rows.Set(u"FieldValue", QStringLiteral("texto %1").arg(round));
        }
        rows.Update();
    }
}

BENCHMARK(FillProductList)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(FillSnapshotTexts)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(FilterTextsOfOneProduct);
BENCHMARK(FilterByProductId);
BENCHMARK(IndexTexts)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchWordInTexts)->Unit(benchmark::kMillisecond);
BENCHMARK(SortListByText)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveThreeTexts)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
