#!/usr/bin/env python3
"""Fails when a source text has no finished translation in a language file.

Runs lupdate over the sources into a scratch .ts, then compares the sets of
(context, source, comment, plural) with the finished messages of each language file.
"""
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET


PLACEHOLDER = re.compile(r"%(?:n|L?\d)")


def placeholders(text):
    return sorted(set(PLACEHOLDER.findall(text or "")))


def messages(path):
    """Every message of a .ts file: key -> finished, filled and with the source's placeholders."""
    result = {}
    for context in ET.parse(path).getroot().iter("context"):
        name = context.findtext("name", "")
        for message in context.iter("message"):
            numerus = message.get("numerus") == "yes"
            key = (name, message.findtext("source", ""), message.findtext("comment", ""), numerus)
            translation = message.find("translation")
            kind = translation.get("type") if translation is not None else "unfinished"
            if numerus:
                forms = [f.text or "" for f in translation.iter("numerusform")] if translation is not None else []
                filled = bool(forms) and all(forms)
            else:
                filled = bool(translation is not None and (translation.text or ""))
            texts = forms if numerus else [translation.text if translation is not None else ""]
            # A plural form may leave out %n ("one file"), but never a numbered placeholder.
            wanted = [p for p in placeholders(key[1]) if p != "%n"]
            same = all([p for p in placeholders(t) if p != "%n"] == wanted for t in texts)
            result[key] = kind is None and filled and same
    return result


def main():
    lupdate, *paths = sys.argv[1:]
    sources = [p for p in paths if not p.endswith(".ts")]
    languages = [p for p in paths if p.endswith(".ts")]
    with tempfile.TemporaryDirectory() as scratch:
        current = os.path.join(scratch, "current.ts")
        subprocess.run([lupdate, "-silent", "-locations", "none", *sources, "-ts", current],
                       check=True)
        wanted = set(messages(current))
    if not wanted:
        print("lupdate found no source texts")
        return 1
    failed = False
    for language in languages:
        have = messages(language)
        # The source language's file holds its plural forms alone.
        needed = {k for k in wanted if k[3]} if language.endswith("_en.ts") else wanted
        missing = sorted(k for k in needed if not have.get(k, False))
        for context, source, _comment, _plural in missing:
            print(f"{os.path.basename(language)}: {context}: no finished translation of {source!r}")
        failed = failed or bool(missing)
        print(f"{os.path.basename(language)}: {len(needed) - len(missing)} of {len(needed)} translated")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
