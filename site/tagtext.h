// A page under expansion: text in which tags are replaced one after the other, each exactly as
// ReplaceTag would, at the cost of the tags that it really holds.
//
// A page holds some of a hundred possible tags. Searching it for each of them in two spellings is
// what makes generation slow, so the text knows where its percent signs stand and what follows
// them, and a tag that begins with one and isn't there costs a glance at that list. Values may
// bring tags of their own: the list follows every replacement. Make one TagText of a section and
// assign it to the same other one for each product: that takes no new memory.
#pragma once

#include "site/transforms.h"

#include <QByteArray>
#include <QVarLengthArray>
#include <string>
#include <vector>

class TagText {
public:
    // The text is below 4 GB, and stays so.
    explicit TagText(QByteArrayView newText = {}) { SetText(newText); }

    // Begins anew with another text.
    void SetText(QByteArrayView newText);

    // As ReplaceTag of site/transforms.
    void Replace(const QByteArray& tag, const QByteArray& value) {
        ReplaceBy(tag, [&value] { return value; });
    }

    // The same with a value that is only made for a text that holds the tag.
    template <typename MakeValue> void ReplaceBy(const QByteArray& tag, MakeValue makeValue) {
        const QByteArray name = TrimBlanks(tag);
        const Places places = FindAll(name);
        if (!places.isEmpty()) {
            ReplaceAt(places, name, makeValue());
        }
    }

    // Every occurrence of `what` by `value`, without the ".DOCWRITE" spelling and without trimming.
    // An empty `what` changes nothing.
    void ReplacePlain(const QByteArray& what, const QByteArray& value);

    void Prepend(const QByteArray& front);

    // Whether Replace would find `tag`.
    bool MayHold(const QByteArray& tag) const;

    QByteArray Text() const { return {text.data(), qsizetype(text.size())}; }

private:
    using Places = QVarLengthArray<quint32, 64>;

    Places FindAll(const QByteArray& needle) const;
    void AppendMarkedPlaces(const QByteArray& needle, Places& places) const;
    void ReplaceAt(const Places& places, const QByteArray& name, const QByteArray& value);
    void Rewrite(const Places& places, qsizetype length, const QByteArray& value);
    void RewriteText(const Places& places, qsizetype length, const QByteArray& value);
    void RewriteMarks(const Places& places, qsizetype length, const QByteArray& value);
    void ReadKeys(std::size_t mark, qint64 end);

    std::string text;
    std::vector<quint32> marks; // places of all percent signs, ascending
    std::vector<quint32> keys;  // four bytes of the text near each, see the source
};
