// Filters of a cursor: conjunctions of equalities, answered from a hash index over the columns that
// they name.
#pragma once

#include "engine/resultset.h"

#include <QStringView>
#include <span>
#include <vector>

// The rows of a result by the values of some columns: numbers by their plain decimal text, texts
// without regard to case. A Null equals nothing.
class FilterIndex {
public:
    // Over `rows` of the result (ascending); `keyColumns` ascending too. The index is valid until
    // one of the rows changes.
    FilterIndex(const ResultSet& result, std::span<const int> rows, std::vector<int> keyColumns);

    const std::vector<int>& KeyColumns() const { return columns; }

    // The rows whose key columns equal the texts, one a column, in the order of the result.
    std::span<const int> Find(const ResultSet& result, std::span<const QStringView> texts) const;

private:
    int FindGroup(const ResultSet& result, std::span<const QStringView> texts, quint64 hash,
                  size_t& place) const;

    std::vector<int> columns;
    std::vector<int> places;     // hash table: group number or -1, sized to a power of two
    std::vector<quint64> hashes; // of each group
    std::vector<int> firstRows;  // of each group, for the comparison
    std::vector<int> groupStart; // of each group in groupedRows, and the end of the last
    std::vector<int> groupedRows;
};
