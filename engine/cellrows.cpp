#include "engine/cellrows.h"

#include <QByteArrayView>
#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstring>

namespace {

using TextSize = quint32; // stands in front of the text's bytes

constexpr qsizetype kChunk = qsizetype{64} * 1024; // bytes
constexpr qsizetype kLongestShared = 24;

QByteArrayView TextAt(const char* record) {
    TextSize size = 0;
    std::memcpy(&size, record, sizeof size);
    return {record + sizeof size, qsizetype(size)};
}

bool IsAscii(QByteArrayView text) {
    return std::all_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) == 0; });
}

void AssignAscii(QString& target, QByteArrayView text) {
    target.resize(text.size());
    std::copy(text.begin(), text.end(), reinterpret_cast<char16_t*>(target.data()));
}

} // namespace

// Texts one behind the other. They stay where they are until the last rows that use them are gone.
class TextArena {
public:
    // Where `text` is kept, its size in front of it.
    const char* Keep(QByteArrayView text) {
        if (text.size() > kLongestShared) {
            return Append(text);
        }
        const char*& known = recent[PlaceOf(text)];
        if (known == nullptr || TextAt(known) != text) {
            known = Append(text);
        }
        return known;
    }

private:
    static constexpr int kPlaceBits = 10;

    static size_t PlaceOf(QByteArrayView text) {
        quint64 head = 0;
        quint64 tail = 0;
        const auto part = std::min<qsizetype>(text.size(), sizeof head);
        if (part > 0) {
            std::memcpy(&head, text.data(), part);
            std::memcpy(&tail, text.data() + text.size() - part, part);
        }
        constexpr quint64 kFactor = 0x9E3779B97F4A7C15; // of the golden ratio: mixes into high bits
        const quint64 hash = ((head * kFactor) ^ tail ^ quint64(text.size())) * kFactor;
        return hash >> (64 - kPlaceBits);
    }

    const char* Append(QByteArrayView text) {
        const auto size = TextSize(text.size());
        char* record = Take(qsizetype(sizeof size) + text.size());
        std::memcpy(record, &size, sizeof size);
        if (size > 0) {
            std::memcpy(record + sizeof size, text.data(), size);
        }
        return record;
    }

    char* Take(qsizetype size) {
        if (size > left) {
            left = std::max(size, kChunk);
            chunks.push_back(std::make_unique_for_overwrite<char[]>(size_t(left)));
            next = chunks.back().get();
        }
        left -= size;
        return std::exchange(next, next + size);
    }

    std::vector<std::unique_ptr<char[]>> chunks;
    char* next = nullptr;
    qsizetype left = 0; // bytes of the last chunk
    std::array<const char*, 1 << kPlaceBits> recent = {};
};

CellRows::CellRows(size_t columnCount)
    : columns(columnCount), texts(std::make_shared<TextArena>()) {}

void CellRows::AddRow() {
    if (count % kRowsPerBlock == 0) {
        Block& block = blocks.emplace_back();
        block.fields.reserve(kRowsPerBlock * columns);
        block.kinds.reserve(kRowsPerBlock * columns);
    }
    Block& block = blocks.back();
    block.fields.resize(block.fields.size() + columns);
    block.kinds.resize(block.kinds.size() + columns);
    ++count;
}

void CellRows::Put(int row, int column, Kind kind, quint64 field) {
    Block& block = blocks[row / kRowsPerBlock];
    block.fields[Place(row, column)] = field;
    block.kinds[Place(row, column)] = kind;
}

void CellRows::SetText(int row, int column, const char* utf8, int size) {
    const char* record = texts->Keep({utf8, qsizetype(size)});
    Put(row, column, Kind::Text, std::bit_cast<quint64>(record));
}

void CellRows::Set(int row, int column, const Cell& value) {
    if (const auto* text = std::get_if<QString>(&value)) {
        const QByteArray utf8 = text->toUtf8();
        SetText(row, column, utf8.constData(), int(utf8.size()));
    } else if (const auto* whole = std::get_if<qint64>(&value)) {
        Put(row, column, Kind::Whole, std::bit_cast<quint64>(*whole));
    } else if (const auto* real = std::get_if<double>(&value)) {
        Put(row, column, Kind::Real, std::bit_cast<quint64>(*real));
    } else {
        Put(row, column, Kind::Null, 0);
    }
}

Cell CellRows::At(int row, int column) const {
    const Block& block = blocks[row / kRowsPerBlock];
    const quint64 field = block.fields[Place(row, column)];
    switch (block.kinds[Place(row, column)]) {
    case Kind::Null:
        break;
    case Kind::Whole:
        return std::bit_cast<qint64>(field);
    case Kind::Real:
        return std::bit_cast<double>(field);
    case Kind::Text:
        return QString::fromUtf8(TextAt(std::bit_cast<const char*>(field)));
    }
    return {};
}

std::vector<Cell> CellRows::Row(int row) const {
    std::vector<Cell> cells;
    cells.reserve(columns);
    for (int column = 0; column < ColumnCount(); ++column) {
        cells.push_back(At(row, column));
    }
    return cells;
}

bool CellRows::ReadText(int row, int column, QString& text) const {
    const Block& block = blocks[row / kRowsPerBlock];
    const quint64 field = block.fields[Place(row, column)];
    const Kind kind = block.kinds[Place(row, column)];
    if (kind == Kind::Null) {
        return false;
    }
    if (kind == Kind::Whole) {
        std::array<char, 24> digits = {};
        const auto end = std::to_chars(digits.begin(), digits.end(), std::bit_cast<qint64>(field));
        AssignAscii(text, {digits.data(), end.ptr});
        return true;
    }
    const auto utf8 =
        kind == Kind::Text ? TextAt(std::bit_cast<const char*>(field)) : QByteArrayView();
    if (kind == Kind::Text && IsAscii(utf8)) {
        AssignAscii(text, utf8);
    } else {
        text = CellText(At(row, column));
    }
    return true;
}
