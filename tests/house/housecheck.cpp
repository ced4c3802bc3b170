#include "housecheck.h"

#include <QRegularExpression>
#include <QSet>
#include <vector>

namespace {

// One arrow of the house: a line of a file that needs something of another folder or room.
struct Use {
    QString file;
    int line = 0;
    QString target; // "core/settings" of an include, "core" of a library

    QString Place() const { return QStringLiteral("%1:%2").arg(file).arg(line); }
};

QString FolderOf(const QString& path) {
    return path.section(u'/', 0, 0);
}

QString RoomOf(const QString& path) {
    return path.section(u'.', 0, 0);
}

void AddIncludes(const QString& file, const QString& text, std::vector<Use>& uses) {
    static const QRegularExpression kInclude(R"re(^\s*#\s*include\s*"([^"]+)\.h")re");
    const QStringList lines = text.split(u'\n');
    for (int line = 0; line < lines.size(); ++line) {
        const QRegularExpressionMatch match = kInclude.match(lines[line]);
        if (match.hasMatch()) {
            uses.push_back({file, line + 1, match.captured(1)});
        }
    }
}

// The libraries behind USES in the description of a wing.
void AddLibraries(const QString& file, const QString& text, std::vector<Use>& uses) {
    static const QRegularExpression kWord(R"re([\w:]+)re");
    const QStringList lines = text.split(u'\n');
    bool listed = false;
    for (int line = 0; line < lines.size(); ++line) {
        auto words = kWord.globalMatch(lines[line].section(u'#', 0, 0));
        while (words.hasNext()) {
            const QString word = words.next().captured();
            if (listed) {
                uses.push_back({file, line + 1, word});
            }
            listed = listed || word == u"USES";
        }
        listed = listed && !lines[line].contains(u')');
    }
}

// Includes first, then libraries.
std::vector<Use> ReadUses(const SourceTexts& texts) {
    std::vector<Use> uses;
    std::vector<Use> libraries;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        if (text.key().endsWith(u".txt")) {
            AddLibraries(text.key(), *text, libraries);
        } else {
            AddIncludes(text.key(), *text, uses);
        }
    }
    uses.insert(uses.end(), libraries.begin(), libraries.end());
    return uses;
}

// A line of `folder` that needs something of `other`, as " and ..."; empty if there is none.
QString WayBack(const std::vector<Use>& uses, const QString& folder, const QString& other) {
    for (const Use& use : uses) {
        if (FolderOf(use.file) == folder && FolderOf(use.target) == other) {
            return QStringLiteral(" and %1 needs %2").arg(use.Place(), use.target);
        }
    }
    return {};
}

void FindArrowsUp(const QMap<QString, int>& floors, const std::vector<Use>& uses,
                  QStringList& faults) {
    for (const Use& use : uses) {
        const QString from = FolderOf(use.file);
        const QString to = FolderOf(use.target);
        if (from != to && floors.contains(from) && floors.contains(to) &&
            floors[to] >= floors[from]) {
            faults += QStringLiteral("%1 (floor %2) needs %3 (floor %4)%5")
                          .arg(use.Place())
                          .arg(floors[from])
                          .arg(use.target)
                          .arg(floors[to])
                          .arg(WayBack(uses, to, from));
        }
    }
}

// Walks from room to room along the includes and tells each way that comes back to where it began.
class CircleSearch {
public:
    explicit CircleSearch(const std::vector<Use>& uses) {
        for (const Use& use : uses) {
            if (RoomOf(use.file) != use.target) {
                includes[RoomOf(use.file)].push_back(use);
            }
        }
    }

    void Find(QStringList& faults) {
        for (const QString& room : includes.keys()) {
            Visit(room, faults);
        }
    }

private:
    void Visit(const QString& room, QStringList& faults) {
        if (done.contains(room)) {
            return;
        }
        done.insert(room);
        onWay.push_back(room);
        for (const Use& use : includes.value(room)) {
            way.push_back(use.Place() + " needs " + use.target);
            const qsizetype start = onWay.indexOf(use.target);
            if (start >= 0) {
                faults += "a circle: " + way.mid(start).join(", ");
            }
            Visit(use.target, faults);
            way.pop_back();
        }
        onWay.pop_back();
    }

    QMap<QString, QList<Use>> includes;
    QSet<QString> done;
    QStringList onWay; // rooms from the start to here
    QStringList way;   // the include that leads on from each of them
};

void CompareFolders(const QMap<QString, int>& floors, const SourceTexts& texts,
                    QStringList& faults) {
    QSet<QString> folders;
    for (const QString& path : texts.keys()) {
        folders.insert(FolderOf(path));
    }
    for (const QString& folder : floors.keys()) {
        if (!folders.contains(folder)) {
            faults += "the table has " + folder + "/, which has no sources";
        }
    }
    for (const QString& folder : QStringList(folders.begin(), folders.end())) {
        if (!floors.contains(folder)) {
            faults += folder + "/ has sources and no row in the table";
        }
    }
}

} // namespace

QMap<QString, int> ReadFloors(const QString& readme) {
    static const QRegularExpression kRow(R"re(^\| (\d+) \| `([a-z]+)/` \|)re",
                                         QRegularExpression::MultilineOption);
    QMap<QString, int> floors;
    auto rows = kRow.globalMatch(readme);
    while (rows.hasNext()) {
        const QRegularExpressionMatch row = rows.next();
        floors.insert(row.captured(2), row.captured(1).toInt());
    }
    return floors;
}

QStringList FindHouseFaults(const QMap<QString, int>& floors, const SourceTexts& texts) {
    const std::vector<Use> uses = ReadUses(texts);
    QStringList faults;
    CompareFolders(floors, texts, faults);
    FindArrowsUp(floors, uses, faults);
    CircleSearch(uses).Find(faults);
    return faults;
}
