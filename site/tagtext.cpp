#include "site/tagtext.h"

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

bool HasAt(QByteArrayView text, qsizetype place, QByteArrayView what) {
    return text.size() - place >= what.size() &&
           std::memcmp(text.data() + place, what.data(), std::size_t(what.size())) == 0;
}

bool AnyKeyEquals(const quint32* keys, quint32 key, quint32 mask) {
    quint32 hits = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
        hits |= quint32(((keys[i] ^ key) & mask) == 0);
    }
    return hits != 0;
}

template <typename List> void AppendSigns(QByteArrayView text, List& signs) {
    const char* const start = text.data();
    const char* const end = start + text.size();
    for (const char* at = start; at != end; ++at) {
        at = static_cast<const char*>(std::memchr(at, kSign, std::size_t(end - at)));
        if (at == nullptr) {
            break;
        }
        signs.push_back(quint32(at - start));
    }
}

// The other half of every rewrite: the new text and its marks arise here and change places with the
// old ones, so that rewriting a page takes no new memory.
std::string spareText;
std::vector<quint32> spareMarks;
std::vector<quint32> spareKeys;

} // namespace

void TagText::SetText(QByteArrayView newText) {
    text.assign(newText.data(), std::size_t(newText.size()));
    marks.clear();
    AppendSigns(text, marks);
    keys.resize(marks.size());
    ReadKeys(0, newText.size());
}

void TagText::ReplaceAt(const Places& places, const QByteArray& name, const QByteArray& value) {
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
    const char* const end = text.data() + text.size();
    const char* from = text.data();
    while (const void* hit = memmem(from, std::size_t(end - from), needle.constData(),
                                    std::size_t(needle.size()))) {
        from = static_cast<const char*>(hit);
        places.push_back(quint32(from - text.data()));
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
    RewriteMarks(places, length, value);
    RewriteText(places, length, value);
    // A key reaches forward, so that those in front of a new value have changed too.
    qint64 shift = 0;
    for (const quint32 place : places) {
        const qint64 start = place + shift;
        const auto stale =
            std::upper_bound(marks.cbegin(), marks.cend(), start - kKeyStart - kKeySize);
        ReadKeys(std::size_t(stale - marks.cbegin()), start + value.size());
        shift += value.size() - length;
    }
}

void TagText::RewriteText(const Places& places, qsizetype length, const QByteArray& value) {
    spareText.clear();
    std::size_t from = 0;
    for (const quint32 place : places) {
        spareText.append(text, from, place - from);
        spareText.append(value.constData(), std::size_t(value.size()));
        from = place + std::size_t(length);
    }
    spareText.append(text, from);
    text.swap(spareText);
}

// Moves the marks to where the text will have them, together with their keys; the new values' marks
// have none yet.
void TagText::RewriteMarks(const Places& places, qsizetype length, const QByteArray& value) {
    QVarLengthArray<quint32, 64> valueMarks;
    AppendSigns(value, valueMarks);
    spareMarks.clear();
    spareKeys.clear();
    auto mark = marks.cbegin();
    qint64 shift = 0;
    const auto moveUpTo = [&](std::vector<quint32>::const_iterator end) {
        const auto key = keys.cbegin() + (mark - marks.cbegin());
        spareKeys.insert(spareKeys.end(), key, key + (end - mark));
        const std::size_t start = spareMarks.size();
        spareMarks.insert(spareMarks.end(), mark, end);
        for (std::size_t i = start; i < spareMarks.size(); ++i) {
            spareMarks[i] += quint32(shift);
        }
        mark = end;
    };
    for (const quint32 place : places) {
        moveUpTo(std::lower_bound(mark, marks.cend(), place));
        for (const quint32 valueMark : valueMarks) {
            spareMarks.push_back(quint32(place + shift + valueMark));
        }
        spareKeys.resize(spareMarks.size());
        mark = std::lower_bound(mark, marks.cend(), place + length);
        shift += value.size() - length;
    }
    moveUpTo(marks.cend());
    marks.swap(spareMarks);
    keys.swap(spareKeys);
}

// Reads the keys of the marks from the given one on that stand before `end`.
void TagText::ReadKeys(std::size_t mark, qint64 end) {
    for (; mark < marks.size() && marks[mark] < end; ++mark) {
        keys[mark] = KeyOf(text.data() + marks[mark], qsizetype(text.size()) - marks[mark]);
    }
}
