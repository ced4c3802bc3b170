#include "site/tagtext.h"

#include "site/transforms.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace {

// Random texts of few different pieces, so that tags occur, touch, overlap and arise from values.
class TinyTexts {
public:
    explicit TinyTexts(quint32 seed) : random(seed) {}

    int Below(int bound) { return random.bounded(bound); }

    QByteArray Text(int pieces) {
        static const QByteArray kPieces[] = {
            "%", "%", "%", "A", "B", "%%A%%", "%%ABCABC%%", ".DOCWRITE", ".DOC", "\r\n", "'", " "};
        QByteArray text;
        for (int i = 0; i < pieces; ++i) {
            text += kPieces[random.bounded(int(std::size(kPieces)))];
        }
        return text;
    }

    QByteArray Tag() {
        static const QByteArray kTags[] = {"%",      "%%",   "%A%",         "%%A%%", " %%A%% ",
                                           "A",      "AB",   "%%ABCABC%%",  "%B",    "B%",
                                           "A%%.DO", "    ", "%%ABCABC%%%", "%%%",   ""};
        return Below(4) == 0 ? Text(1 + Below(3)) : kTags[random.bounded(int(std::size(kTags)))];
    }

private:
    QRandomGenerator random;
};

} // namespace

TEST(TagText, AnySequenceOfReplacementsEqualsPlainReplacing) {
    for (quint32 seed = 0; seed < 4000; ++seed) {
        TinyTexts random(seed);
        QByteArray expected = random.Text(random.Below(40));
        const TagText section(expected);
        TagText text = section;
        for (int step = 0; step < 12 && expected.size() < 20000; ++step) {
            const QByteArray tag = random.Tag();
            const QByteArray value = random.Text(random.Below(5));
            const int action = random.Below(8);
            if (action == 0) {
                expected.prepend(value);
                text.Prepend(value);
            } else if (action == 1) {
                expected = tag.isEmpty() ? expected : QByteArray(expected).replace(tag, value);
                text.ReplacePlain(tag, value);
            } else {
                EXPECT_EQ(text.MayHold(tag),
                          !TrimBlanks(tag).isEmpty() && expected.contains(TrimBlanks(tag)));
                expected = ReplaceTag(expected, tag, value);
                text.Replace(tag, value);
            }
            ASSERT_EQ(text.Text(), expected)
                << "seed " << seed << ", step " << step << ", tag \"" << tag.toStdString() << "\"";
        }
    }
}
