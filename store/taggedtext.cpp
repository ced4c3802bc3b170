#include "store/taggedtext.h"

#include <QStringList>

QString TaggedText(const QString& text, const QString& language, int index) {
    const QStringList entries = text.split(u'|');
    if (index < 0 || index >= entries.size()) {
        return {};
    }
    const QStringList alternatives = entries[index].split(u'#');
    for (const QString& alternative : alternatives) {
        if (alternative.size() >= 2 && alternative.left(2) == language) {
            return alternative.mid(2);
        }
    }
    return alternatives.last().mid(2);
}
