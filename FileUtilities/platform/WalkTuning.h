#pragma once

#include <QString>

#include <functional>

// How much of a scan's waiting on the disk is done ahead, on threads of their own: folder
// listings and file fingerprints. Whatever the numbers, the walk takes everything in its own
// order and decides alone, so the reports are those of a walk that reads by itself.
struct WalkTuning
{
    int listingWorkers = 0; // 0: the walk lists every folder itself
    int foldersAhead = 0;   // listings read or being read that the walk has not reached
    int fingerprintWorkers = 0;
    int fingerprintsAhead = 0;
    // Called before every read of a folder or a file, on whichever thread reads; tests slow
    // reads down here to shuffle the timing.
    std::function<void()> beforeRead = {};

    // Everything on the walking thread, as a reference for the tuned walk.
    static WalkTuning oneThread() { return {}; }
    // What suits the device holding `path`: a spinning disk gets fewer readers and a
    // shorter queue than flash, which keeps many reads in flight.
    static WalkTuning forFolder(const QString &path);
    // The device's own word, from sysfs; unknown devices count as flash.
    static bool isOnRotatingDisk(const QString &path);
};
