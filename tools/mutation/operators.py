"""What a mutant is: one small change of one place of a source, found by patterns over its lines."""
import random
import re

# Chance of each kind among those that a file offers.
WEIGHTS = {"constant": 24, "comparison": 20, "sign": 20, "logic": 10, "rounding": 10, "order": 10,
           "omission": 6}

COMPARISONS = {"<": ("<=", ">"), "<=": ("<", ">"), ">": (">=", "<"), ">=": (">", "<"),
               "==": ("!=",), "!=": ("==",)}
SWAPS = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "/", "+=": "-=", "-=": "+=", "*=": "/=",
         "/=": "*=", "++": "--", "--": "++"}
LOGIC = {"&&": "||", "||": "&&", "true": "false", "false": "true", "!": ""}
ROUNDINGS = {
    "floorToInt16": "roundToInt16", "roundToInt16": "floorToInt16", "floorToWhole": "roundToEven",
    "roundToEven": "floorToWhole", "roundToInt32": "static_cast<std::int32_t>",
    "floorToInt": "static_cast<int>", "std::floor": "std::ceil", "std::ceil": "std::floor",
    "static_cast<float>": "static_cast<double>", "float": "double", "double": "float"}

WHOLE = re.compile(r"(?<![\w.'])\d+(?![\w.'])")
REAL = re.compile(r"(?<![\w.])\d+\.\d+(?![\d.])")
COMPARISON = re.compile(r"(?<= )(?:<=|>=|==|!=|<|>)(?= )")
BINARY = re.compile(r"(?<= )(?:[+\-*/%]=?)(?= )|\+\+|--")
NEGATION = re.compile(r"(?:(?<=[(\[{])|(?<=[,=?:*/+\-<>] )|(?<=return ))-(?=[\w(])")
LOGICAL = re.compile(r"&&|\|\||\btrue\b|\bfalse\b|!(?=[\w(:])")
ROUNDING = re.compile(r"static_cast<float>|std::floor\b|std::ceil\b|\b(?:floorToInt16|roundToInt16|"
                      r"floorToWhole|roundToEven|roundToInt32|floorToInt|float|double)\b")
PAIR = re.compile(r"\b\w+\((\w+), (\w+)\b(?=[,)])")
STATEMENT = re.compile(r"^\s+(?!return|break|continue|throw|using|case|default|goto|if|for|while|else|"
                       r"do\b|struct|static_assert|\}|#)[\w(*+\-][^{}]*;$")
DECLARATION = re.compile(r"^\s+(?:static )?(?:const|constexpr|auto)\b")
DECLARED = re.compile(r"^[\w:<>,*& ]+ [\w~]+\((?:.*[\w&*>]|)\)(?: const)?;|^[\w:<>,*& ]+ \w+\(.*,$")
MEMBERS = re.compile(r"^[\w:<>,*& ]+ \w+_(?: = [^;]*)?; ")
FOREIGN = re.compile(r"^\s*(?:#|using |namespace |template|static_assert)|\bresult_of\b|operator[<>=+\-*/!]")


def masked_lines(text):
    """The lines with comments, texts and characters blanked, so that no pattern meets them."""
    def blank(match):
        return re.sub(r"[^\n]", " ", match.group())
    text = re.sub(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])\'', blank, text,
                  flags=re.S)
    return [" " * len(line) if FOREIGN.search(line) else line for line in text.split("\n")]


def count_code(text):
    return sum(1 for line in masked_lines(text) if re.search(r"\w", line))


def next_real(word):
    """The number with its last digit one up: 3.14159 becomes 3.14160."""
    digits = len(word.split(".")[1])
    return f"{float(word) + 10 ** -digits:.{digits}f}"


def changes_of_line(line):
    """(kind, begin, end, replacements) of each place of a masked line."""
    for found in WHOLE.finditer(line):
        value = int(found.group())
        choices = ("1",) if value == 0 else (str(value + 1), str(value - 1))
        yield "constant", found.start(), found.end(), choices
    for found in REAL.finditer(line):
        yield "constant", found.start(), found.end(), (next_real(found.group()),)
    for found in COMPARISON.finditer(line):
        yield "comparison", found.start(), found.end(), COMPARISONS[found.group()]
    for found in BINARY.finditer(line):
        if found.group() in SWAPS:
            yield "sign", found.start(), found.end(), (SWAPS[found.group()],)
    for found in NEGATION.finditer(line):
        yield "sign", found.start(), found.end(), ("",)
    for found in LOGICAL.finditer(line):
        yield "logic", found.start(), found.end(), (LOGIC[found.group()],)
    for found in ROUNDING.finditer(line):
        yield "rounding", found.start(), found.end(), (ROUNDINGS[found.group()],)
    for found in PAIR.finditer(line):
        if found.group(1) != found.group(2):
            yield "order", found.start(1), found.end(2), (f"{found.group(2)}, {found.group(1)}",)
    if STATEMENT.match(line):
        begin = len(line) - len(line.lstrip())
        yield "omission", begin, len(line), (";",)


def indent_of(line):
    return len(line) - len(line.lstrip())


def is_swappable(line, after):
    """Whether two lines are statements of one block; the place of a constant seldom matters."""
    return (STATEMENT.match(line) and STATEMENT.match(after) and indent_of(line) == indent_of(after)
            and not DECLARATION.match(line) and not DECLARATION.match(after))


class Mutant:
    def __init__(self, file, line, kind, before, after, lines):
        self.file, self.line, self.kind = file, line, kind
        self.before, self.after = before, after
        self.lines = lines  # the whole mutated file

    def is_about_declarations(self):
        """Whether it changes, drops or swaps declarations: that never builds, or says the same."""
        if self.file.endswith(".h") and DECLARED.match(self.before):
            return True
        if self.kind == "omission" or (self.kind == "order" and "; " in self.before):
            return self.file.endswith(".h") or MEMBERS.match(self.before) is not None
        return False

    def changed_lines(self, text):
        """Numbers, from 0, of the lines that differ from the original."""
        return [n for n, line in enumerate(text.split("\n")) if line != self.lines[n]]

    def row(self):
        return [f"{self.file}:{self.line}", self.kind, f"{self.before}  =>  {self.after}"]


def mutants_of(file, text, seed):
    """Every mutant of a file, in an order by chance that depends on the seed and the file alone."""
    chance = random.Random(f"{seed}:{file}")
    lines, masked = text.split("\n"), masked_lines(text)
    by_kind = {}
    for number, line in enumerate(masked):
        for kind, begin, end, choices in changes_of_line(line):
            changed = lines[number][:begin] + chance.choice(choices) + lines[number][end:]
            mutated = lines[:number] + [changed] + lines[number + 1:]
            by_kind.setdefault(kind, []).append(
                Mutant(file, number + 1, kind, lines[number].strip(), changed.strip(), mutated))
        after = masked[number + 1] if number + 1 < len(masked) else ""
        if is_swappable(line, after):
            swapped = lines[:number] + [lines[number + 1], lines[number]] + lines[number + 2:]
            by_kind.setdefault("order", []).append(
                Mutant(file, number + 1, "order",
                       f"{lines[number].strip()} {lines[number + 1].strip()}",
                       f"{lines[number + 1].strip()} {lines[number].strip()}", swapped))
    for found in by_kind.values():
        chance.shuffle(found)
    while by_kind:
        kinds = sorted(by_kind)
        kind = chance.choices(kinds, [WEIGHTS[k] for k in kinds])[0]
        mutant = by_kind[kind].pop()
        if not mutant.is_about_declarations():
            yield mutant
        if not by_kind[kind]:
            del by_kind[kind]
