#include "housecheck.h"

#include <QDir>
#include <QFileInfo>
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

// What an include names, seen from the top folder, without its ending.
QString Resolved(const QString& file, const QString& name) {
    const bool relative = name.startsWith(u'.');
    return RoomOf(QDir::cleanPath(relative ? QFileInfo(file).path() + u'/' + name : name));
}

// All that `need` captures in a file.
void AddUses(const QString& file, const QString& text, const QRegularExpression& need,
             std::vector<Use>& uses) {
    for (const QRegularExpressionMatch& match : need.globalMatch(text)) {
        const auto line = text.left(match.capturedStart(1)).count(u'\n') + 1;
        uses.push_back({file, static_cast<int>(line), Resolved(file, match.captured(1))});
    }
}

// Includes first, then the libraries in the description of each wing.
std::vector<Use> ReadUses(const SourceTexts& texts) {
    static const QRegularExpression kInclude(R"re(^\s*#\s*include\s*["<]([^">]+)[">])re",
                                             QRegularExpression::MultilineOption);
    static const QRegularExpression kLibrary(
        R"re((?:\bUSES|\btarget_link_libraries\(\w+|(?!\A)\G)(?:\s|#[^\n]*)+([\w:]+))re");
    std::vector<Use> uses;
    std::vector<Use> libraries;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        const bool isWing = text.key().endsWith(u".txt");
        AddUses(text.key(), *text, isWing ? kLibrary : kInclude, isWing ? libraries : uses);
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

// Takes away each include from which no room leads on or to which none leads, until nothing but
// circles is left. One through several folders has an arrow up, which is told by itself.
void FindCircles(std::vector<Use> includes, QStringList& faults) {
    for (size_t before = 0; before != includes.size();) {
        before = includes.size();
        QSet<QString> from;
        QSet<QString> to;
        for (const Use& use : includes) {
            from.insert(RoomOf(use.file));
            to.insert(use.target);
        }
        std::erase_if(includes, [&](const Use& use) {
            const QString room = RoomOf(use.file);
            return room == use.target || FolderOf(room) != FolderOf(use.target) ||
                   !from.contains(use.target) || !to.contains(room);
        });
    }
    QStringList needs;
    for (const Use& use : includes) {
        needs += use.Place() + " needs " + use.target;
    }
    if (!needs.isEmpty()) {
        faults += "a circle: " + needs.join(", ");
    }
}

void CompareFolders(const QMap<QString, int>& floors, const SourceTexts& texts,
                    QStringList& faults) {
    QMap<QString, int> folders;
    for (const QString& path : texts.keys()) {
        folders[FolderOf(path)];
        if (!floors.contains(FolderOf(path))) {
            faults += FolderOf(path) + "/ has sources and no row in the table";
        }
    }
    for (const QString& folder : floors.keys()) {
        if (!folders.contains(folder)) {
            faults += "the table has " + folder + "/, which has no sources";
        }
    }
    faults.removeDuplicates();
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
    FindCircles(uses, faults);
    return faults;
}
