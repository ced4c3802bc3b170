// The fields of many rows, packed: nine bytes a field beside its text, and a short text that comes
// again is kept once. A catalogue of ten thousand products has some hundred thousand rows in memory
// while its site is made.
#pragma once

#include "engine/cell.h"

#include <memory>
#include <vector>

class TextArena;

// Rows and columns are counted from 0. A copy shares the texts.
class CellRows {
public:
    explicit CellRows(size_t columnCount = 0);

    int Count() const { return count; }
    int ColumnCount() const { return static_cast<int>(columns); }

    // Appends a row of Nulls.
    void AddRow();

    void Set(int row, int column, const Cell& value);
    void SetText(int row, int column, const char* utf8, int size);

    Cell At(int row, int column) const;
    std::vector<Cell> Row(int row) const;

    // CellText(At(row, column)) in the memory that `text` has already; false for Null, which leaves
    // `text` alone.
    bool ReadText(int row, int column, QString& text) const;

private:
    enum class Kind : quint8 { Null, Whole, Real, Text };

    // Kinds beside what they say of the eight bytes: a number or the address of a text.
    struct Block {
        std::vector<quint64> fields;
        std::vector<Kind> kinds;
    };
    static constexpr int kRowsPerBlock = 128;

    size_t Place(int row, int column) const { return row % kRowsPerBlock * columns + column; }
    void Put(int row, int column, Kind kind, quint64 field);

    size_t columns;
    int count = 0;
    std::vector<Block> blocks; // rows never move, so that filling costs no copying
    std::shared_ptr<TextArena> texts;
};
