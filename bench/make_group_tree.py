#!/usr/bin/env python3
"""Build a tree of N duplicate pairs of sparse files.

usage: make_group_tree.py OUT_DIR [--groups N] [--seed S]

A scanner groups files by size and type first, so every pair needs a size and
type of its own. Pairs take turns over the file types of the shared MIME
database (one extension each) and their sizes grow by one byte per round:
pair i has the i-th type in turn and 65537 + i // TYPES bytes. Files stay just
above 64 KiB, so reading both ends of every file touches little page cache.
Each file is a 16-byte header holding i, then a hole (~4 KiB of disk).
The two copies sit in different folders of about 100 files each.
"""

import argparse
import os
import random
import struct
import sys
import time

PER_FOLDER = 100
TOP_FOLDERS = 4
BASE_SIZE = 65537
GLOBS = "/usr/share/mime/globs2"


def comments():
    """The English comment of each MIME type: scanners tell types apart by this text."""
    import glob
    import xml.etree.ElementTree as ET
    ns = "{http://www.freedesktop.org/standards/shared-mime-info}"
    lang = "{http://www.w3.org/XML/1998/namespace}lang"
    result = {}
    for package in sorted(glob.glob("/usr/share/mime/packages/*.xml")):
        try:
            root = ET.parse(package).getroot()
        except (OSError, ET.ParseError):
            continue
        for node in root.iter(ns + "mime-type"):
            for comment in node.iter(ns + "comment"):
                if lang not in comment.attrib:
                    result.setdefault(node.get("type"), comment.text)
                    break
    return result


def extensions():
    """One plain extension per distinct type text, in a fixed order."""
    texts = comments()
    seen, result = set(), []
    try:
        with open(GLOBS, encoding="utf-8") as globs:
            lines = sorted(globs)
    except OSError:
        return ["dat"]
    for line in lines:
        parts = line.strip().split(":")
        if len(parts) != 3 or not parts[2].startswith("*."):
            continue
        mime, ext = parts[1], parts[2][2:]
        text = texts.get(mime, mime)
        if not (ext.isalnum() and ext.islower()) or ext.startswith("app") or text in seen:
            continue
        seen.add(text)
        result.append(ext)
    return result or ["dat"]


def main():
    ap = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    ap.add_argument("out_dir")
    ap.add_argument("--groups", type=int, default=100_000)
    ap.add_argument("--seed", type=int, default=1)
    a = ap.parse_args()
    if a.groups < 1:
        ap.error("--groups must be positive")
    if os.path.exists(a.out_dir) and os.listdir(a.out_dir):
        sys.exit("make_group_tree.py: %s is not empty, refusing to write" % a.out_dir)
    os.makedirs(a.out_dir, exist_ok=True)
    t0 = time.monotonic()

    half = (a.groups + PER_FOLDER - 1) // PER_FOLDER
    folders = []
    for t in range(TOP_FOLDERS):
        os.mkdir(os.path.join(a.out_dir, "top%d" % t))
    for k in range(2 * half):
        path = os.path.join(a.out_dir, "top%d" % (k % TOP_FOLDERS), "dir%05d" % k)
        os.mkdir(path)
        folders.append(path)

    # First copies fill folders in order; second copies are shuffled over the
    # other half, so a pair never shares a folder and neighbours differ.
    order = list(range(a.groups))
    random.Random(a.seed).shuffle(order)
    second_slot = [0] * a.groups
    for slot, i in enumerate(order):
        second_slot[i] = slot

    types = extensions()
    flags = os.O_WRONLY | os.O_CREAT | os.O_EXCL
    apparent = 0
    for i in range(a.groups):
        head = struct.pack("<8sQ", b"QMGROUP\x00", i)
        size = BASE_SIZE + i // len(types)
        name = "pair%06d.%s" % (i, types[i % len(types)])
        apparent += 2 * size
        for folder in (folders[i // PER_FOLDER],
                       folders[half + second_slot[i] // PER_FOLDER]):
            fd = os.open(os.path.join(folder, name), flags, 0o644)
            try:
                os.write(fd, head)
                os.ftruncate(fd, size)
            finally:
                os.close(fd)

    print("make_group_tree.py: %d types, %d groups, %d files, %d folders, %d apparent bytes in %s, %.1f s"
          % (len(types), a.groups, 2 * a.groups, 2 * half + TOP_FOLDERS, apparent, a.out_dir,
             time.monotonic() - t0))


if __name__ == "__main__":
    main()
