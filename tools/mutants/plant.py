"""Plants small faults in the sources of the rules.

usage: plant.py SOURCES BUILT COMPILE_COMMANDS MOST SEED LIST [FILE ...]

SOURCES is a copy of the repository's root; its files are rewritten. It is to be built in the folder BUILT, as
COMPILE_COMMANDS tells. Each fault stands beside the right code and is chosen when the program runs:
`Is(17) ? a <= b : a < b`. So one build holds all of them. LIST, a JSON file, tells where each one is and what it
changes. MOST faults are planted at most, drawn by SEED, none within another, and only in those files or folders.
"""
import hashlib
import json
import re
import sys
from collections import Counter
from pathlib import Path

from clang.cindex import CursorKind, Index

HEADER = Path(__file__).resolve().with_name("planted.h")
FLOORS = ("field", "battle", "screens", "core", "ui")
OTHER = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
    "+": "-", "-": "+", "*": "+", "/": "*", "%": "+", "&&": "||", "||": "&&",
    "+=": "-=", "-=": "+=", "*=": "+=", "/=": "*=", "|=": "&=", "&=": "|=",
}
KINDS = {
    **dict.fromkeys(("<", "<=", ">", ">=", "==", "!="), "comparison"),
    **dict.fromkeys(("&&", "||"), "logic"),
}
CALLED = (CursorKind.CALL_EXPR, CursorKind.BINARY_OPERATOR, CursorKind.COMPOUND_ASSIGNMENT_OPERATOR)
STATEMENTS = (*CALLED, CursorKind.UNARY_OPERATOR, CursorKind.UNEXPOSED_EXPR)


class File:
    """One source file, and the faults that could be planted in it."""

    def __init__(self, root, path, unit):
        self.name = str(path.relative_to(root))
        self.path = path
        self.bytes = path.read_bytes()
        self.faults = []
        for cursor in unit.cursor.get_children():
            self.look(cursor, None)

    def text(self, begin, end):
        return self.bytes[begin:end].decode()

    def span(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def here(self, cursor):
        file = cursor.extent.start.file
        return file is not None and file.name == str(self.path)

    def add(self, kind, cursor, routine, planted, statement=False):
        begin, end = self.span(cursor)
        right = self.text(begin, end)
        if "//" in right:
            return
        line = cursor.extent.start.line
        self.faults.append(dict(file=self.name, line=line, routine=routine, kind=kind, begin=begin, end=end,
                                last=cursor.extent.end.line, right=" ".join(right.split()),
                                planted=" ".join(planted.split()), statement=statement))

    def look(self, cursor, routine):
        """Follows the tree into what this file defines and no compiler computes."""
        if cursor.kind in (CursorKind.NAMESPACE, CursorKind.LINKAGE_SPEC, CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL):
            if cursor.kind == CursorKind.NAMESPACE or self.here(cursor):
                for child in cursor.get_children():
                    self.look(child, routine)
            return
        if not self.here(cursor):
            return
        if cursor.kind in (CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
                           CursorKind.CONVERSION_FUNCTION):
            head = [token.spelling for token in cursor.get_tokens()][:4]
            if "constexpr" in head or "consteval" in head:
                return
            for child in cursor.get_children():
                if child.kind == CursorKind.COMPOUND_STMT:
                    self.body(child, cursor.spelling)

    def body(self, cursor, routine):
        if cursor.kind == CursorKind.VAR_DECL and any(
                token.spelling in ("constexpr", "static") for token in list(cursor.get_tokens())[:2]):
            return
        if cursor.kind == CursorKind.CASE_STMT:
            for child in list(cursor.get_children())[1:]:
                self.body(child, routine)
            return
        self.fault_of(cursor, routine)
        for child in cursor.get_children():
            if cursor.kind == CursorKind.COMPOUND_STMT and child.kind in STATEMENTS:
                self.add("dropped statement", child, routine, "", statement=True)
            # What a variable is made with begins with its name, and is no expression.
            if cursor.kind == CursorKind.VAR_DECL and child.extent.start.offset == cursor.location.offset:
                for part in child.get_children():
                    self.body(part, routine)
            else:
                self.body(child, routine)

    def fault_of(self, cursor, routine):
        children = list(cursor.get_children())
        if cursor.kind == CursorKind.INTEGER_LITERAL:
            text = self.text(*self.span(cursor))
            if re.fullmatch(r"\d+", text):
                self.add("constant", cursor, routine, str(int(text) + 1))
        elif cursor.kind == CursorKind.UNARY_OPERATOR:
            text = self.text(*self.span(cursor))
            if text.startswith(("!", "-")) and not text.startswith(("--", "!=")):
                self.add("sign", cursor, routine, f"!({text})" if text[0] == "!" else text[1:])
        elif cursor.kind in CALLED:
            sides = children if cursor.kind != CursorKind.CALL_EXPR else list(cursor.get_arguments())
            operator = len(sides) == 2 and self.operator_between(*sides)
            if operator:
                begin, end = self.span(cursor)
                left, right = self.span(sides[0]), self.span(sides[1])
                kind = KINDS.get(operator, "arithmetic")
                self.add(kind, cursor, routine,
                         f"{self.text(begin, left[1])} {OTHER[operator]} {self.text(right[0], end)}")
            elif cursor.kind == CursorKind.CALL_EXPR and not cursor.spelling.startswith("operator"):
                self.swap(cursor, sides, routine)

    def operator_between(self, left, right):
        between = self.text(self.span(left)[1], self.span(right)[0]).strip()
        texts = "basic_string" in left.type.get_canonical().spelling + right.type.get_canonical().spelling
        if between not in OTHER or (texts and between.startswith("+")):
            return None
        return between

    def swap(self, cursor, sides, routine):
        if cursor.spelling in ("min", "max"):
            return
        for one, other in zip(sides, sides[1:]):
            if one.type.get_canonical().spelling != other.type.get_canonical().spelling:
                continue
            begin, end = self.span(cursor)
            first, second = self.span(one), self.span(other)
            one_text, other_text = self.text(*first), self.text(*second)
            if one_text == other_text or first[1] > second[0] or not one_text or not other_text:
                continue
            planted = (self.text(begin, first[0]) + other_text + self.text(first[1], second[0]) + one_text +
                       self.text(second[1], end))
            self.add("swapped arguments", cursor, routine, planted)
            return


def choose(faults, most, seed):
    """Draws the faults to plant, of each kind alike and none within another.

    Each has its own lot, which follows from what it is: a change elsewhere draws no others.
    """
    alike = Counter()
    lots = {}
    for fault in faults:
        what = " ".join(str(fault[part]) for part in ("file", "routine", "kind", "right", "planted"))
        alike[what] += 1
        fault["which"] = alike[what]
        lots[id(fault)] = hashlib.sha256(f"{seed} {alike[what]} {what}".encode()).digest()
    by_kind = {}
    for fault in sorted(faults, key=lambda fault: lots[id(fault)]):
        by_kind.setdefault(fault["kind"], []).append(fault)
    chosen, taken = [], {}
    while len(chosen) < most and any(by_kind.values()):
        for kind in sorted(by_kind):
            while by_kind[kind] and len(chosen) < most:
                fault = by_kind[kind].pop()
                spans = taken.setdefault(fault["file"], [])
                if any(fault["begin"] < end and begin < fault["end"] for begin, end in spans):
                    continue
                spans.append((fault["begin"], fault["end"]))
                chosen.append(fault)
                break
    return chosen


def plant(root, faults):
    """Rewrites the files; numbers the faults from 1."""
    faults.sort(key=lambda fault: (fault["file"], fault["begin"]))
    for number, fault in enumerate(faults, 1):
        fault["number"] = number
    for name in {fault["file"] for fault in faults}:
        path = root / name
        text = path.read_bytes()
        for fault in reversed([fault for fault in faults if fault["file"] == name]):
            right = text[fault["begin"]:fault["end"]].decode()
            chosen = f"::orvane_planted::Is({fault['number']})"
            if fault["statement"]:
                new = f"if (!{chosen}) {right}"
            else:
                new = f"({chosen} ? ({fault['planted']}) : ({right}))"
            text = text[:fault["begin"]] + new.encode() + text[fault["end"]:]
        path.write_bytes(f'#include "{HEADER}"\n#line 1\n'.encode() + text)


def main():
    root, built, commands, most, seed, target, *only = sys.argv[1:]
    root = Path(root).resolve()
    refused = set()
    if Path(target).exists():  # those that a compiler has refused before
        refused = {tuple(spot) for spot in json.loads(Path(target).read_text()).get("refused", [])}
    flags = {}
    for command in json.loads(Path(commands).read_text()):
        # The folder of what is built may hold faults already.
        words = command["command"].replace(built, str(root)).split()[1:]
        file = command["file"].replace(built, str(root))
        flags[file] = [word for word in words if word.startswith(("-I", "-D", "-std", "-isystem"))]
    faults = []
    for floor in FLOORS:
        for path in sorted((root / "src" / floor).rglob("*.cpp")):
            if str(path) not in flags:
                continue
            unit = Index.create().parse(str(path), args=[*flags[str(path)], f"-I{root}"])
            errors = [str(problem) for problem in unit.diagnostics if problem.severity >= 3]
            if errors:
                raise SystemExit(f"{path}: {errors[0]}")
            faults += File(root, path, unit).faults
    total = len(faults)
    if only:
        faults = [fault for fault in faults if fault["file"].startswith(tuple(only))]
    chosen = choose(faults, int(most), seed)
    chosen = [fault for fault in chosen if (fault["file"], fault["begin"], fault["kind"]) not in refused]
    plant(root, chosen)
    Path(target).write_text(json.dumps(dict(possible=total, refused=sorted(refused), faults=chosen), indent=1))
    print(f"{len(chosen)} of {total} faults planted:", dict(Counter(fault["kind"] for fault in chosen)))


if __name__ == "__main__":
    main()
