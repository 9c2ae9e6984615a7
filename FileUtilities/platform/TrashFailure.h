#pragma once

// Why an item stayed where it was. FreedesktopTrash turns each into a sentence for the user.
enum class TrashFailure
{
    None,
    Missing,                // the item is not there (any more)
    NotMovable,             // the top folder of a drive, or a path that names no item
    AlreadyInTrash,         // the item lies inside the Trash that would take it
    HoldsTheTrash,          // the Trash lies inside the item
    NoTrashOnDrive,         // the drive has no Trash folder that is ours alone, nor can have one
    TrashFolderNotAFolder,  // "files", "info" or the Trash is a file or a link
    TrashFolderNotWritable, // a Trash folder refuses new entries
    DiskFull,               // no space or no inodes left, or over quota
    ReadOnly,               // the item's drive is mounted read-only
    PermissionDenied,       // the item's folder does not let it be taken out
    TooManyNames,           // every name the Trash could give the item is taken
    Unexpected,             // anything else the system reports; the log has the details
};
