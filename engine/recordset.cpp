#include "engine/recordset.h"

#include "engine/filterindex.h"
#include "engine/rowwriter.h"
#include "engine/storeengine.h"

#include <QVarLengthArray>
#include <algorithm>
#include <numeric>
#include <span>
#include <vector>

namespace {

constexpr int kNoRow = -1;

[[noreturn]] void ThrowNoCurrentRow() {
    throw StoreError(kErrNoCurrentRow, QStringLiteral("No hay ningún registro actual"));
}

constexpr int kUsualTerms = 8; // of a filter; more of them cost an allocation

} // namespace

struct Recordset::Data {
    std::shared_ptr<StoreConnection> connection;
    QString source;
    bool pessimistic = false;

    bool open = false;
    ResultSet result;
    std::vector<int> live; // rows of the result that are not deleted, ascending
    PendingRows pending;
    std::map<int, std::unique_ptr<RowLock>> locks; // by row

    bool filtered = false;
    std::vector<int> ownView;  // the filter's rows once the indexes are gone
    std::span<const int> view; // the filter's rows: in an index or in ownView
    std::vector<std::unique_ptr<FilterIndex>> indexes;

    int position = kNoRow;    // of the current row among the rows let through, from 0
    int afterDelete = kNoRow; // where MoveNext goes after a Delete

    std::span<const int> Rows() const { return filtered ? view : std::span<const int>(live); }

    int CurrentRow() const {
        if (position == kNoRow) {
            ThrowNoCurrentRow();
        }
        return Rows()[position];
    }

    void RequireOpen() const {
        if (!open) {
            throw StoreError(kErrNotOpen, QStringLiteral("El cursor no está abierto"));
        }
    }

    void RequireColumn(int column) const {
        if (column < 0 || column >= static_cast<int>(result.columns.size())) {
            throw StoreError(kErrNoColumn, QStringLiteral("No existe la columna %1").arg(column));
        }
    }

    void RequireUpdatable() const {
        RequireOpen();
        if (result.table.isEmpty()) {
            throw StoreError(kErrNotUpdatable,
                             QStringLiteral("Los registros de esta consulta son de sólo lectura"));
        }
    }

    void MoveTo(int place) {
        position = place >= 0 && place < static_cast<int>(Rows().size()) ? place : kNoRow;
        afterDelete = kNoRow;
    }

    void Drop() {
        open = false;
        result = ResultSet();
        live.clear();
        pending.clear();
        locks.clear();
        DropFilter();
        MoveTo(kNoRow);
    }

    void DropFilter() {
        filtered = false;
        view = {};
        indexes.clear();
    }

    // Before rows change: the indexes go, the rows let through stay.
    void LeaveIndexes() {
        if (filtered && view.data() != ownView.data()) {
            ownView.assign(view.begin(), view.end());
            view = ownView;
        }
        indexes.clear();
    }

    void Show(ResultSet&& rows) {
        Drop();
        result = std::move(rows);
        live.resize(result.rows.Count());
        std::iota(live.begin(), live.end(), 0);
        open = true;
        MoveTo(0);
    }

    // The row as the store has it now, under its lock; once a row until the cursor's statement
    // changes.
    void LockRow(int row) {
        const bool added = pending.contains(row) && pending[row].kind == PendingKind::Added;
        if (!pessimistic || added || locks.contains(row)) {
            return;
        }
        auto lock = std::make_unique<RowLock>(connection->Path(), result.table, result.rowIds[row]);
        const std::vector<Cell> present = ReadRow(*connection, result, result.rowIds[row]);
        if (present.empty()) {
            throw StoreError(kErrNoCurrentRow,
                             QStringLiteral("Otro usuario ha eliminado el registro"));
        }
        TakeOver(row, present);
        locks[row] = std::move(lock);
    }

    // Computed columns keep what the statement gave.
    void TakeOver(int row, const std::vector<Cell>& cells) {
        for (size_t column = 0; column < cells.size(); ++column) {
            if (!result.columns[column].origin.isEmpty()) {
                result.rows.Set(row, int(column), cells[column]);
            }
        }
        LeaveIndexes();
    }

    // The pending entry of a row that is about to change.
    PendingRow& PendingOf(int row) {
        const auto known = pending.find(row);
        if (known != pending.end()) {
            return known->second;
        }
        return pending[row] = {PendingKind::Edited, result.rows.Row(row)};
    }

    const FilterIndex& IndexOver(std::span<const int> columns) {
        for (const auto& index : indexes) {
            if (std::ranges::equal(index->KeyColumns(), columns)) {
                return *index;
            }
        }
        indexes.push_back(std::make_unique<FilterIndex>(
            result, live, std::vector<int>(columns.begin(), columns.end())));
        return *indexes.back();
    }
};

Recordset::Recordset() : d(std::make_unique<Data>()) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

void Recordset::SetConnection(std::shared_ptr<StoreConnection> connection) {
    d->Drop();
    d->connection = std::move(connection);
}

std::shared_ptr<StoreConnection> Recordset::Connection() const {
    return d->connection;
}

void Recordset::SetPessimistic(bool pessimistic) {
    d->pessimistic = pessimistic;
}

void Recordset::SetSource(const QString& statement) {
    d->Drop();
    d->source = statement;
}

const QString& Recordset::Source() const {
    return d->source;
}

void Recordset::Open() {
    if (d->connection == nullptr) {
        throw StoreError(kErrNotOpen, QStringLiteral("El cursor no tiene conexión"));
    }
    d->Show(ReadResult(*d->connection, d->source));
}

void Recordset::Close() {
    d->Drop();
}

bool Recordset::IsOpen() const {
    return d->open;
}

Recordset Recordset::Clone() const {
    Recordset clone;
    clone.d->connection = d->connection;
    clone.d->source = d->source;
    if (!d->open) {
        return clone;
    }
    ResultSet rows = d->result;
    for (const auto& [row, change] : d->pending) {
        if (change.kind == PendingKind::Edited || change.kind == PendingKind::Deleted) {
            for (int column = 0; column < rows.rows.ColumnCount(); ++column) {
                rows.rows.Set(row, column, change.original[column]);
            }
        }
    }
    clone.d->Show(std::move(rows));
    // Left out: rows added here and not written, and rows whose deletion is written.
    std::erase_if(clone.d->live, [this](int row) {
        const auto change = d->pending.find(row);
        return change != d->pending.end()
                   ? change->second.kind == PendingKind::Added
                   : !std::binary_search(d->live.begin(), d->live.end(), row);
    });
    clone.d->MoveTo(0);
    return clone;
}

int Recordset::RecordCount() const {
    return static_cast<int>(d->Rows().size());
}

int Recordset::AbsolutePosition() const {
    return d->position + 1;
}

void Recordset::SetAbsolutePosition(int position) {
    d->RequireOpen();
    d->MoveTo(position - 1);
}

void Recordset::MoveFirst() {
    d->RequireOpen();
    d->MoveTo(0);
}

void Recordset::MoveNext() {
    d->RequireOpen();
    if (d->position != kNoRow) {
        d->MoveTo(d->position + 1);
    } else {
        d->MoveTo(d->afterDelete);
    }
}

bool Recordset::HasRow() const {
    return d->position != kNoRow;
}

void Recordset::SetFilter(std::initializer_list<ColumnEquals> terms) {
    d->RequireOpen();
    if (terms.size() == 0) {
        ClearFilter();
        return;
    }
    QVarLengthArray<int, kUsualTerms> columns; // ascending, as an index has them
    QVarLengthArray<QStringView, kUsualTerms> texts;
    for (const ColumnEquals& term : terms) {
        const int column = term.place < 0 ? Column(term.name) : term.place;
        d->RequireColumn(column);
        const auto place = std::upper_bound(columns.begin(), columns.end(), column);
        texts.insert(place - columns.begin(), term.text);
        columns.insert(place, column);
    }
    d->view = d->IndexOver(columns).Find(d->result, texts);
    d->filtered = true;
    d->MoveTo(0);
}

void Recordset::ClearFilter() {
    d->RequireOpen();
    d->filtered = false;
    d->MoveTo(0);
}

void Recordset::AddNew() {
    d->RequireUpdatable();
    const int row = d->result.rows.Count();
    d->LeaveIndexes();
    d->result.rows.AddRow();
    d->result.rowIds.push_back(0); // known after Update
    d->pending[row] = {PendingKind::Added, d->result.rows.Row(row)};
    d->live.push_back(row);
    if (d->filtered) {
        d->ownView.push_back(row);
        d->view = d->ownView;
    }
    d->MoveTo(RecordCount() - 1);
}

void Recordset::Delete() {
    d->RequireUpdatable();
    const int row = d->CurrentRow();
    d->LockRow(row);
    d->LeaveIndexes();
    PendingRow& change = d->PendingOf(row);
    if (change.kind == PendingKind::Added) {
        d->pending.erase(row);
    } else {
        change.kind = PendingKind::Deleted;
    }
    const int place = d->position;
    d->live.erase(std::lower_bound(d->live.begin(), d->live.end(), row));
    if (d->filtered) {
        d->ownView.erase(d->ownView.begin() + place);
        d->view = d->ownView;
    }
    d->MoveTo(kNoRow);
    d->afterDelete = place;
}

void Recordset::Update() {
    if (d->pending.empty()) {
        return;
    }
    for (WrittenRow& written :
         WritePendingRows(*d->connection, d->result, d->pending, d->pessimistic)) {
        d->result.rowIds[written.row] = written.rowId;
        if (!written.cells.empty()) {
            d->TakeOver(written.row, written.cells);
        }
        if (written.lock != nullptr) {
            d->locks[written.row] = std::move(written.lock);
        }
    }
    d->pending.clear();
}

bool Recordset::HasPending() const {
    return !d->pending.empty();
}

int Recordset::ColumnCount() const {
    return static_cast<int>(d->result.columns.size());
}

int Recordset::Column(QStringView name) const {
    d->RequireOpen();
    const auto& columns = d->result.columns;
    for (size_t column = 0; column < columns.size(); ++column) {
        if (columns[column].name.size() == name.size() &&
            name.compare(columns[column].name, Qt::CaseInsensitive) == 0) {
            return static_cast<int>(column);
        }
    }
    throw StoreError(kErrNoColumn, QStringLiteral("No existe la columna %1").arg(name));
}

Cell Recordset::Value(int column) const {
    d->RequireOpen();
    d->RequireColumn(column);
    return d->result.rows.At(d->CurrentRow(), column);
}

void Recordset::Set(QStringView name, const Cell& value) {
    d->RequireUpdatable();
    const int column = Column(name);
    const ResultColumn& target = d->result.columns[column];
    if (target.origin.isEmpty()) {
        throw StoreError(kErrNotUpdatable,
                         QStringLiteral("La columna %1 es de sólo lectura").arg(name));
    }
    const int row = d->CurrentRow();
    d->LockRow(row);
    const Cell kept = ConvertCell(value, target.affinity);
    if (d->result.rows.At(row, column) == kept) {
        return;
    }
    d->PendingOf(row);
    d->LeaveIndexes();
    d->result.rows.Set(row, column, kept);
}
