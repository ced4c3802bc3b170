// A page under expansion: text in which tags are replaced one after the other, each exactly as
// ReplaceTag would, at the cost of the tags that it really holds.
//
// A page holds some of a hundred possible tags. Searching it for each of them in two spellings is
// what makes generation slow, so the text knows which places can begin a tag at all, and a tag that
// can't be there costs nothing. Values may bring tags of their own: the knowledge follows every
// replacement.
#pragma once

#include <QByteArray>
#include <QStringView>
#include <vector>

class TagText {
public:
    explicit TagText(QByteArray text = {});

    // As ReplaceTag of generator/transforms.
    void Replace(const QByteArray& tag, const QByteArray& value);

    // Every occurrence of `what` by `value`, without the ".DOCWRITE" spelling and without trimming.
    // An empty `what` changes nothing.
    void ReplacePlain(const QByteArray& what, const QByteArray& value);

    void Prepend(const QByteArray& text);

    // Whether `tag` may occur: false is certain.
    bool MayHold(const QByteArray& tag) const;

    const QByteArray& Text() const { return text; }
    QByteArray Take();

private:
    QByteArray text;
    // How the places are kept is this room's own affair.
    std::vector<quint32> marks;
    bool indexed = false;
};
