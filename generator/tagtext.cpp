#include "generator/tagtext.h"

#include "generator/transforms.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr char kDocWriteMark[] = ".DOCWRITE";
constexpr char kSign = '%';

// The key of a percent sign is made of the four bytes from the second one behind it on: the first
// letters of the name in %%NAME%%, and most of the name in %LID%. Zeros stand beyond the end.
constexpr qsizetype kKeyStart = 2;
constexpr qsizetype kKeySize = sizeof(quint32);

// Keys that are compared before the first look at a result; the compiler makes vector code of it.
constexpr std::size_t kBlock = 16;

quint32 KeyOf(const char* bytes, qsizetype size) {
    if (size >= kKeyStart + kKeySize) {
        return qFromLittleEndian<quint32>(bytes + kKeyStart);
    }
    quint32 key = 0;
    for (qsizetype i = kKeyStart; i < size; ++i) {
        key |= quint32(quint8(bytes[i])) << 8 * (i - kKeyStart);
    }
    return key;
}

// Ones where a name of `size` bytes has a say in the key.
quint32 KeyMask(qsizetype size) {
    static constexpr char kOnes[] = "\xff\xff\xff\xff\xff\xff";
    return KeyOf(kOnes, qMin(size, kKeyStart + kKeySize));
}

bool HasAt(const QByteArray& text, qsizetype place, QByteArrayView what) {
    return text.size() - place >= what.size() &&
           std::memcmp(text.constData() + place, what.constData(), std::size_t(what.size())) == 0;
}

bool AnyKeyEquals(const quint32* keys, quint32 key, quint32 mask) {
    quint32 hits = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
        hits |= quint32(((keys[i] ^ key) & mask) == 0);
    }
    return hits != 0;
}

template <typename List> void AppendSigns(const QByteArray& text, quint32 offset, List& signs) {
    for (qsizetype i = text.indexOf(kSign); i >= 0; i = text.indexOf(kSign, i + 1)) {
        signs.push_back(offset + quint32(i));
    }
}

} // namespace

TagText::TagText(QByteArray newText) : text(std::move(newText)) {
    AppendSigns(text, 0, marks);
    ReadKeys(0);
}

void TagText::Replace(const QByteArray& tag, const QByteArray& value) {
    const QByteArray name = TrimBlanks(tag);
    const Places places = FindAll(name);
    const bool scripted = std::any_of(places.begin(), places.end(), [&](quint32 place) {
        return HasAt(text, place + name.size(), kDocWriteMark);
    });
    if (scripted) {
        ReplacePlain(name + kDocWriteMark, ToDocWrite(value));
        ReplacePlain(name, value);
    } else {
        Rewrite(places, name.size(), value);
    }
}

void TagText::ReplacePlain(const QByteArray& what, const QByteArray& value) {
    Rewrite(FindAll(what), what.size(), value);
}

void TagText::Prepend(const QByteArray& front) {
    Rewrite(Places{0}, 0, front);
}

bool TagText::MayHold(const QByteArray& tag) const {
    return !FindAll(TrimBlanks(tag)).isEmpty();
}

QByteArray TagText::Take() {
    marks.clear();
    keys.clear();
    return std::exchange(text, {});
}

// All places of `needle`, also such as overlap; none of an empty one.
TagText::Places TagText::FindAll(const QByteArray& needle) const {
    Places places;
    if (needle.isEmpty()) {
        return places;
    }
    if (needle.front() == kSign) {
        AppendMarkedPlaces(needle, places);
        return places;
    }
    // The C library's search is some three times as fast as the standard containers'.
    const char* const end = text.constData() + text.size();
    const char* from = text.constData();
    while (const void* hit = memmem(from, std::size_t(end - from), needle.constData(),
                                    std::size_t(needle.size()))) {
        from = static_cast<const char*>(hit);
        places.push_back(quint32(from - text.constData()));
        ++from;
    }
    return places;
}

void TagText::AppendMarkedPlaces(const QByteArray& needle, Places& places) const {
    const quint32 mask = KeyMask(needle.size());
    const quint32 key = KeyOf(needle.constData(), needle.size());
    for (std::size_t i = 0; i < keys.size();) {
        if (i + kBlock <= keys.size() && !AnyKeyEquals(&keys[i], key, mask)) {
            i += kBlock;
            continue;
        }
        for (const std::size_t end = std::min(i + kBlock, keys.size()); i < end; ++i) {
            if (((keys[i] ^ key) & mask) == 0 && HasAt(text, marks[i], needle)) {
                places.push_back(marks[i]);
            }
        }
    }
}

// Puts `value` in place of the `length` bytes at each of `places` that doesn't overlap the one
// before it.
void TagText::Rewrite(const Places& found, qsizetype length, const QByteArray& value) {
    if (found.isEmpty()) {
        return;
    }
    Places places;
    for (const quint32 place : found) {
        if (places.isEmpty() || place >= places.back() + length) {
            places.push_back(place);
        }
    }
    QByteArray fresh(text.size() + places.size() * (value.size() - length), Qt::Uninitialized);
    const char* from = text.constData();
    char* to = fresh.data();
    for (const quint32 place : places) {
        to = std::copy(from, text.constData() + place, to);
        to = std::copy(value.cbegin(), value.cend(), to);
        from = text.constData() + place + length;
    }
    std::copy(from, text.cend(), to);
    text = std::move(fresh);
    ShiftMarks(places, length, value);
}

// Brings the marks up to what Rewrite did to the text.
void TagText::ShiftMarks(const Places& places, qsizetype length, const QByteArray& value) {
    QVarLengthArray<quint32, 64> valueMarks;
    AppendSigns(value, 0, valueMarks);
    const auto first = std::lower_bound(marks.cbegin(), marks.cend(), places.front());
    std::vector<quint32> moved(marks.cbegin(), first);
    moved.reserve(marks.size() + std::size_t(valueMarks.size() * places.size()));
    qint64 shift = 0;
    auto mark = first;
    for (const quint32 place : places) {
        for (; mark != marks.cend() && *mark < place; ++mark) {
            moved.push_back(quint32(*mark + shift));
        }
        for (const quint32 valueMark : valueMarks) {
            moved.push_back(quint32(place + shift + valueMark));
        }
        while (mark != marks.cend() && *mark < place + length) {
            ++mark;
        }
        shift += value.size() - length;
    }
    for (; mark != marks.cend(); ++mark) {
        moved.push_back(quint32(*mark + shift));
    }
    marks.swap(moved);
    // Keys reach forward: some in front of the first place have changed too.
    const qint64 reach = qint64(places.front()) - kKeyStart - kKeySize;
    const auto stale = std::upper_bound(marks.cbegin(), marks.cend(), reach);
    ReadKeys(std::size_t(stale - marks.cbegin()));
}

// Reads the keys of all marks from index `first` on.
void TagText::ReadKeys(std::size_t first) {
    keys.resize(marks.size());
    for (std::size_t i = first; i < marks.size(); ++i) {
        keys[i] = KeyOf(text.constData() + marks[i], text.size() - marks[i]);
    }
}
