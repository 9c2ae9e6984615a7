#pragma once

#include "GroupMap.h"

#include <QList>
#include <QString>
#include <QStringList>

// Which copy of each group stays when the rest go to the Trash, and what that frees.
//
// The choice rests on what the scan saw (paths and modification times): making the plan
// reads nothing from disk, so it is quick for ten thousand groups. Each copy it names still
// passes the proof before it moves.
class KeepOnePlan
{
public:
    enum class Rule
    {
        Oldest,       // the copy modified longest ago
        Newest,       // the copy modified last
        ShortestPath, // the copy with the fewest characters in its path
        InFolder,     // a copy inside the folder the user names
    };

    struct Group
    {
        QString key;
        QString kept;
        QStringList removed;      // the kept copy's other paths, in the group's order
        QList<qint64> freedBytes; // what each of them frees, by position in `removed`
    };

    // Ties go to the copy found first; InFolder takes the one with the shortest path among
    // those inside `folder`, and passes over a group with none there.
    static KeepOnePlan make(const GroupMap &groups, const QStringList &keys, Rule rule,
                            const QString &folder = QString());

    const QList<Group> &groups() const { return m_groups; }
    // Groups left whole because no copy lies inside the folder.
    int groupsWithoutAChoice() const { return m_groupsWithoutAChoice; }
    qsizetype filesToRemove() const { return m_filesToRemove; }
    // A further name of a file that stays frees nothing, and is not counted.
    qint64 bytesFreed() const { return m_bytesFreed; }

private:
    QList<Group> m_groups;
    int m_groupsWithoutAChoice = 0;
    qsizetype m_filesToRemove = 0;
    qint64 m_bytesFreed = 0;
};
