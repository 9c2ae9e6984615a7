#pragma once

#include "NameCheck.h"

#include <QString>

#include <vector>

// Checks a batch of planned names before any file moves: a name another row of the batch
// takes in the same folder, a name held by a file that stays (on disk, or a listed file
// that keeps its name), and a text that cannot be one file name. A name held by a listed
// file that moves away itself is free: chains and rings of names are carried out in an
// order that lets them succeed.
//
// It reads the disk and changes nothing there: a name not held by the batch is looked up in
// its folder, or, where the folder holds not many more entries than there are names to look
// up, the folder is read once (ten thousand look-ups cost some forty milliseconds, reading
// a folder of ten thousand names three). It keeps no state, so it may run on a worker thread.
class TargetNameCheck
{
public:
    struct Row
    {
        QString sourcePath; // where the file is; "" for a row that has no file
        QString targetName; // the whole new name; "" for a row without one
        // Filled in by check():
        QString targetPath = {};
        NameCheck result = NameCheck::Unchecked;
    };

    enum class Paths
    {
        Made,    // the target path of each Free or Unchanged row is filled in, for a move
        Skipped, // only the results are wanted
    };

    // Fills in every row's result (and target path); gives the number of Free rows.
    static qsizetype check(std::vector<Row> &rows, Paths paths = Paths::Made);
};
