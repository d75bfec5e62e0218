#!/usr/bin/env python3
"""Reads the listing of an ICU data file and prints the items that Lorvo never asks for.

What stays: everything that belongs to no language, the languages that a Czech show office meets
in names (Czech order first of all), and the code pages that its files may have. It makes 3 MB
out of 30."""

import re
import sys

LANGUAGES = {"root", "res_index", "cs", "sk", "en", "de", "pl", "hu"}
CODE_PAGES = {
    "ibm-5346_P100-1998",  # windows-1250 with the euro
    "ibm-1250_P100-1995",
    "ibm-5348_P100-1997",  # windows-1252 with the euro
    "ibm-912_P100-1995",  # ISO 8859-2
    "ibm-852_P100-1995",
}
# Transliteration, breaking of text, numbers in words: no use of them at all.
UNUSED_FOLDERS = {"translit", "brkitr", "rbnf"}
# Names of units, languages and regions: the root's are enough.
ROOT_ONLY_FOLDERS = {"unit", "lang", "region"}
UNUSED_NAMES = {"unames.icu", "uemoji.icu"}
LOCALE = re.compile(r"([a-z]{2,3})(_\w*)?|root|res_index")


def is_unused(item: str) -> bool:
    folder, _, name = item.rpartition("/")
    stem, _, kind = name.rpartition(".")
    if folder in UNUSED_FOLDERS or name in UNUSED_NAMES or kind in ("spp", "cfu"):
        return True
    if kind == "cnv":
        return stem not in CODE_PAGES
    locale = LOCALE.fullmatch(stem) if kind == "res" else None
    if locale is None:
        return False
    if folder in ROOT_ONLY_FOLDERS and stem != "root":
        return True
    return (locale[1] or stem) not in LANGUAGES


for line in sys.stdin:
    if is_unused(line.strip()):
        print(line.strip())
