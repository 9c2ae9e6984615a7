#!/usr/bin/env python3
"""Build a deterministic file tree for benchmarking duplicate finders.

usage: make_tree.py OUT_DIR [--files N] [--folders M] [--seed S] [--large K]
                    [--deep D] [--wide W]

Mostly small files with unique content, about 3% above 64 KiB (a third of
those are copies), and K large originals of 10-100 MB copied once or twice.
--deep adds a chain of D nested folders that take files like any other, and --wide
puts about W of the small files into one folder; without them the tree is the one
earlier figures were measured on. Same arguments give the same names, sizes and bytes.
"""

import argparse
import os
import random
import sys
import time

KIB = 1024
MIB = 1024 * KIB
MEDIUM_MIN = 64 * KIB + 1
MEDIUM_MAX = 2 * MIB
LARGE_MIN = 10_000_000
LARGE_MAX = 100_000_000
LARGE_BUDGET = 800_000_000  # all large files incl. copies, keeps the tree near 1.4 GB

# Leading bytes typical of each type, so content sniffers see plausible files.
MAGIC = {
    ".jpg": b"\xff\xd8\xff\xe0\x00\x10JFIF\x00",
    ".png": b"\x89PNG\r\n\x1a\n",
    ".mp3": b"ID3\x03\x00\x00",
    ".pdf": b"%PDF-1.4\n",
    ".txt": b"",
    ".doc": b"\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1",
    ".mov": b"\x00\x00\x00\x14ftypqt  ",
    ".dat": b"",
}
STEM = {
    ".jpg": "IMG", ".png": "screenshot", ".mp3": "track", ".pdf": "report",
    ".txt": "notes", ".doc": "letter", ".mov": "clip", ".dat": "data",
}
SMALL_EXT = [(".jpg", 18), (".png", 10), (".mp3", 6), (".pdf", 10),
             (".txt", 26), (".doc", 12), (".mov", 2), (".dat", 16)]
MEDIUM_EXT = [(".jpg", 28), (".png", 10), (".mp3", 20), (".pdf", 14),
              (".txt", 3), (".doc", 5), (".mov", 8), (".dat", 12)]
LARGE_EXT = [".mov", ".dat", ".mov", ".pdf", ".dat", ".mov"]
FOLDER_WORDS = ["Photos", "Music", "Documents", "Archive", "Work", "Backup",
                "Projects", "Scans", "Videos", "Downloads", "Misc", "Old",
                "Camera", "Reports", "Shared", "Trips"]
TEXT_WORDS = ("the of and to in is was for on that with as by at from this "
              "file copy folder report draft final note list meeting budget "
              "plan review photo track album invoice summary").split()


def weighted(rng, table):
    total = sum(w for _, w in table)
    r = rng.random() * total
    for item, w in table:
        r -= w
        if r < 0:
            return item
    return table[-1][0]


def make_folders(rng, out, count):
    """Top-level folders, then levels 2-4; files go only into levels 2-4."""
    top = max(1, count // 1000)
    rest = count - top
    d2 = max(1, rest * 20 // 100)
    d3 = max(1, rest * 35 // 100)
    d4 = max(1, rest - d2 - d3)
    levels = [[], [], [], []]
    n = 0
    for depth, k in enumerate((top, d2, d3, d4)):
        for _ in range(k):
            name = "%s_%05d" % (rng.choice(FOLDER_WORDS), n)
            n += 1
            parent = rng.choice(levels[depth - 1]) if depth else out
            path = os.path.join(parent, name)
            os.mkdir(path)
            levels[depth].append(path)
    return levels[1] + levels[2] + levels[3], n


def write_file(path, chunks):
    fd = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o644)
    try:
        for c in chunks:
            os.write(fd, c)
    finally:
        os.close(fd)


def header(ext, idx):
    return MAGIC[ext] + b"qm%07d\n" % idx


def pool_content(pool, ext, idx, size, off):
    """Unique header plus a slice of a shared pool: fast and never equal."""
    h = header(ext, idx)
    return h + pool[off:off + size - len(h)]


def large_chunks(seed, ext, idx, size):
    """A unique 1 MiB block repeated after a unique header; copies recompute it."""
    r = random.Random("large-%d-%d" % (seed, idx))
    block = r.randbytes(MIB)
    head = header(ext, idx) + r.randbytes(48)
    yield head
    left = size - len(head)
    while left > 0:
        n = min(left, MIB)
        yield block if n == MIB else block[:n]
        left -= n


def other_folder(rng, folders, avoid):
    # Bounded retry: at least 3 file folders exist, so a miss is rare.
    for _ in range(100):
        f = rng.choice(folders)
        if f not in avoid:
            return f
    return next(f for f in folders if f not in avoid)


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("out_dir")
    ap.add_argument("--files", type=int, default=200_000)
    ap.add_argument("--folders", type=int, default=10_000)
    ap.add_argument("--seed", type=int, default=1)
    ap.add_argument("--large", type=int, default=6,
                    help="large originals of 10-100 MB (default 6)")
    ap.add_argument("--deep", type=int, default=0,
                    help="a chain of this many nested folders (default 0)")
    ap.add_argument("--wide", type=int, default=0,
                    help="about this many small files in one folder (default 0)")
    a = ap.parse_args()
    if a.folders < 4:
        ap.error("--folders must be at least 4")
    n_large_copies_max = 2 * a.large
    if a.files < 100 + a.large + n_large_copies_max:
        ap.error("--files too small")
    if os.path.exists(a.out_dir) and os.listdir(a.out_dir):
        sys.exit("make_tree.py: %s is not empty, refusing to write" % a.out_dir)
    os.makedirs(a.out_dir, exist_ok=True)

    t0 = time.monotonic()
    rng = random.Random(a.seed)
    folders, n_folders = make_folders(rng, a.out_dir, a.folders)
    if a.deep:
        parent = folders[0]
        for level in range(a.deep):
            parent = os.path.join(parent, "Nested_%04d" % level)
            os.mkdir(parent)
            folders.append(parent)
        n_folders += a.deep
    wide_folder = None
    if a.wide:
        wide_folder = os.path.join(a.out_dir, "Inbox")
        os.mkdir(wide_folder)
        n_folders += 1

    pool = rng.randbytes(MEDIUM_MAX + MIB)
    text = " ".join(rng.choice(TEXT_WORDS) + ("\n" if rng.random() < 0.1 else "")
                    for _ in range(2000))
    text = (text * (8 * KIB // len(text) + 2)).encode("ascii")
    total_bytes = 0
    idx = 0
    used = set()

    # Large originals first, so the medium/small split knows the count left.
    for _ in range(1000):  # bounded: too many originals cannot fit
        large = []
        for i in range(a.large):
            size = int(LARGE_MIN * (LARGE_MAX / LARGE_MIN) ** rng.random())
            large.append((size, LARGE_EXT[i % len(LARGE_EXT)], 1 + rng.randrange(2)))
        if sum(s * (1 + c) for s, _, c in large) <= LARGE_BUDGET:
            break
    else:
        sys.exit("make_tree.py: --large %d does not fit in %d bytes" % (a.large, LARGE_BUDGET))
    n_large = sum(1 + c for _, _, c in large)
    n_medium = round(a.files * 0.03)
    n_medium_copies = n_medium // 3
    n_small = a.files - n_large - n_medium
    n_small_copies = n_small // 100  # a few small duplicates, as in real trees

    def place(folder, name):
        path = os.path.join(folder, name)
        used.add(path)
        return path

    def new_name(ext, i):
        return "%s_%07d%s" % (STEM[ext], i, ext)

    def copy_path(rng, src_path, src_folder, ext, i):
        folder = other_folder(rng, folders, {src_folder})
        name = os.path.basename(src_path)
        if rng.random() < 0.5 or os.path.join(folder, name) in used:
            name = "%s_%07d_copy%s" % (STEM[ext], i, ext)
        return place(folder, name)

    # Small files: unique headers, a slice of the pool; 1% exact copies.
    small = []
    for _ in range(n_small - n_small_copies):
        ext = weighted(rng, SMALL_EXT)
        size = int(40 * (4096 / 40) ** rng.random())
        src = text if ext == ".txt" else pool
        off = rng.randrange(len(src) - size)
        folder = rng.choice(folders)
        if wide_folder and rng.random() < a.wide / n_small:
            folder = wide_folder
        path = place(folder, new_name(ext, idx))
        write_file(path, (pool_content(src, ext, idx, size, off),))
        small.append((path, folder, ext, size, off, idx))
        total_bytes += size
        idx += 1
    for _ in range(n_small_copies):
        src_path, src_folder, ext, size, off, src_idx = small[rng.randrange(len(small))]
        src = text if ext == ".txt" else pool
        path = copy_path(rng, src_path, src_folder, ext, idx)
        write_file(path, (pool_content(src, ext, src_idx, size, off),))
        total_bytes += size
        idx += 1
    del small

    # Medium files: mostly just over 64 KiB, a tail up to 2 MiB; some share
    # a size with another original so size alone does not settle them.
    medium = []
    for _ in range(n_medium - n_medium_copies):
        ext = weighted(rng, MEDIUM_EXT)
        if medium and rng.random() < 0.15:
            size = medium[rng.randrange(len(medium))][3]
        elif rng.random() < 0.03:
            size = int(128 * KIB * 16 ** rng.random())
        else:
            size = MEDIUM_MIN + min(int(rng.expovariate(1 / (24 * KIB))),
                                    MEDIUM_MAX - MEDIUM_MIN)
        off = rng.randrange(len(pool) - size)
        folder = rng.choice(folders)
        path = place(folder, new_name(ext, idx))
        write_file(path, (pool_content(pool, ext, idx, size, off),))
        medium.append((path, folder, ext, size, off, idx))
        total_bytes += size
        idx += 1
    for _ in range(n_medium_copies):
        src_path, src_folder, ext, size, off, src_idx = medium[rng.randrange(len(medium))]
        path = copy_path(rng, src_path, src_folder, ext, idx)
        write_file(path, (pool_content(pool, ext, src_idx, size, off),))
        total_bytes += size
        idx += 1

    # Large files: each original plus one or two copies in other folders.
    for size, ext, copies in large:
        src_idx = idx
        folder = rng.choice(folders)
        src_path = place(folder, new_name(ext, idx))
        write_file(src_path, large_chunks(a.seed, ext, src_idx, size))
        idx += 1
        avoid = {folder}
        for _ in range(copies):
            f = other_folder(rng, folders, avoid)
            avoid.add(f)
            name = os.path.basename(src_path)
            if rng.random() < 0.5:
                name = "%s_%07d_copy%s" % (STEM[ext], idx, ext)
            write_file(place(f, name), large_chunks(a.seed, ext, src_idx, size))
            idx += 1
        total_bytes += size * (1 + copies)

    assert idx == a.files
    print("make_tree.py: %d files, %d folders, %d bytes (%.1f MiB) in %s, %.1f s"
          % (idx, n_folders, total_bytes, total_bytes / MIB, a.out_dir,
             time.monotonic() - t0))


if __name__ == "__main__":
    main()
