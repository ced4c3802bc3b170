#include "engine/filterindex.h"

#include <bit>

namespace {

constexpr int kNoGroup = -1;

char16_t Folded(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x80) {
        return unit >= u'A' && unit <= u'Z' ? unit | 0x20 : unit;
    }
    return character.toCaseFolded().unicode();
}

bool EqualFolded(QStringView left, QStringView right) {
    if (left.size() != right.size()) {
        return false;
    }
    for (qsizetype unit = 0; unit < left.size(); ++unit) {
        if (left[unit] != right[unit] && Folded(left[unit]) != Folded(right[unit])) {
            return false;
        }
    }
    return true;
}

constexpr quint64 kHashStart = 0xCBF29CE484222325;  // FNV-1a, 64 bits
constexpr quint64 kHashFactor = 0x00000100000001B3; // (http://www.isthe.com/chongo/tech/comp/fnv)

quint64 HashOf(std::span<const QStringView> texts) {
    quint64 hash = kHashStart;
    for (const QStringView text : texts) {
        for (const QChar character : text) {
            hash = (hash ^ Folded(character)) * kHashFactor;
        }
        hash = (hash ^ 0xFFFF) * kHashFactor; // keeps ("ab", "c") apart from ("a", "bc")
    }
    return hash;
}

size_t PlaceOf(quint64 hash, size_t size) {
    return (hash ^ hash >> 32) & (size - 1);
}

} // namespace

FilterIndex::FilterIndex(const ResultSet& result, std::span<const int> rows,
                         std::vector<int> keyColumns)
    : columns(std::move(keyColumns)) {
    places.assign(std::bit_ceil(rows.size() * 2 + 1), kNoGroup);
    std::vector<QString> keys(columns.size());
    std::vector<QStringView> texts(columns.size());
    std::vector<int> keyedRows;
    std::vector<int> groupOfRow;
    std::vector<int> sizes;
    for (const int row : rows) {
        bool hasNull = false;
        for (size_t key = 0; key < columns.size(); ++key) {
            hasNull = !result.rows.ReadText(row, columns[key], keys[key]) || hasNull;
            texts[key] = keys[key];
        }
        if (hasNull) {
            continue;
        }
        size_t place = 0;
        const quint64 hash = HashOf(texts);
        int group = FindGroup(result, texts, hash, place);
        if (group == kNoGroup) {
            group = static_cast<int>(firstRows.size());
            places[place] = group;
            hashes.push_back(hash);
            firstRows.push_back(row);
            sizes.push_back(0);
        }
        ++sizes[group];
        keyedRows.push_back(row);
        groupOfRow.push_back(group);
    }
    groupStart.assign(1, 0);
    for (const int size : sizes) {
        groupStart.push_back(groupStart.back() + size);
    }
    groupedRows.resize(keyedRows.size());
    std::vector<int> next(groupStart.begin(), groupStart.end() - 1);
    for (size_t keyed = 0; keyed < keyedRows.size(); ++keyed) {
        groupedRows[next[groupOfRow[keyed]]++] = keyedRows[keyed];
    }
}

std::span<const int> FilterIndex::Find(const ResultSet& result,
                                       std::span<const QStringView> texts) const {
    size_t place = 0;
    const int group = FindGroup(result, texts, HashOf(texts), place);
    if (group == kNoGroup) {
        return {};
    }
    const int start = groupStart[group];
    return {groupedRows.data() + start, static_cast<size_t>(groupStart[group + 1] - start)};
}

// `place` is left at the group's place in the hash table, or at the free one where it would go.
int FilterIndex::FindGroup(const ResultSet& result, std::span<const QStringView> texts,
                           quint64 hash, size_t& place) const {
    QString key;
    for (place = PlaceOf(hash, places.size()); places[place] != kNoGroup;
         place = (place + 1) & (places.size() - 1)) {
        const int group = places[place];
        bool equal = hashes[group] == hash;
        for (size_t column = 0; equal && column < columns.size(); ++column) {
            result.rows.ReadText(firstRows[group], columns[column], key);
            equal = EqualFolded(key, texts[column]);
        }
        if (equal) {
            return group;
        }
    }
    return kNoGroup;
}
