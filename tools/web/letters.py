#!/usr/bin/python3
"""letters.py FONT OUT.woff2 NAME [TEXT_FILE ...]: the letters of a font that the game needs, as a font of another
name: its licence lets parts of it go, but by no name of its own. With files, whose letters are taken, come those in
which players name their heroes; without, the basic ones alone."""
import sys
from pathlib import Path

from fontTools import subset

source, out, name, *texts = sys.argv[1:]
letters = set(range(0x20, 0x7F)) | {0xA0}
if texts:
    for first, last in [(0x2010, 0x2027), (0x2190, 0x2193), (0x3000, 0x30FF), (0xFF01, 0xFF9F)]:
        letters |= set(range(first, last + 1))
for text in texts:
    letters |= {ord(letter) for letter in Path(text).read_text(encoding="utf-8")}

options = subset.Options()
options.layout_features = []
options.hinting = False
options.drop_tables += ["vmtx", "vhea", "VORG", "GSUB", "GPOS"]
options.name_IDs = [0, 13, 14]  # copyright and licence
options.name_languages = ["*"]
options.recalc_timestamp = False
options.flavor = "woff2"
font = subset.load_font(source, options)
subsetter = subset.Subsetter(options)
subsetter.populate(unicodes=letters)
subsetter.subset(font)
for number, text in {1: name, 2: "Regular", 3: name, 4: name, 5: "1.0", 6: name.replace(" ", "")}.items():
    font["name"].setName(text, number, 3, 1, 0x409)
subset.save_font(font, out, options)
