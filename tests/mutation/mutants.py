# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

"""Small changes to lines of C++: which there are, and how several of them fit into one line that chooses when it runs."""

import re

REPLACEMENTS = [
    (r"(?<![=!<>])==(?!=)", "!="),
    (r"!=", "=="),
    (r"(?<= )<=(?= )", "<"),
    (r"(?<= )>=(?= )", ">"),
    (r"(?<= )<(?= )", "<="),
    (r"(?<= )>(?= )", ">="),
    (r"(?<= )&&(?= )", "||"),
    (r"(?<= )\|\|(?= )", "&&"),
    (r"(?<= )\+(?= )", "-"),
    (r"(?<= )-(?= )", "+"),
    (r"\+\+", "--"),
    (r"(?<= )\+=(?= )", "-="),
    (r"(?<= )-=(?= )", "+="),
    (r"\btrue\b", "false"),
    (r"\bfalse\b", "true"),
    (r"(?<![\w.\"'])0(?![\w.\"'])", "1"),
    (r"(?<![\w.\"'])1(?![\w.\"'])", "2"),
    (r"(?<= )&(?= )", "|"),
    (r"(?<=[(\s])!(?=[\w(])", ""),
    (r"\bbreak;", ";"),
    (r"\bcontinue;", ";"),
]
CONDITION = re.compile(r"\b(?:if|while) \((?!const |auto )(.+)\) \{$")
FOR = re.compile(r"^\s*for \((.+;.+;.*)\) \{$")
CALL_OR_ASSIGNMENT = re.compile(
    r"^\s+(?!return|break|continue|using|static_assert|typedef|struct|class|const |auto |throw|delete )"
    r"[\w:>.\-*()&\[\]]+(\(.*\)| [+\-|&]?= .+);$")
DECLARATION = re.compile(r"^\s*(?!return |else |delete |throw |using |case )"
                         r"(?:[\w:]+(?:<.*>)?[ *&]+)+\w+ = (.+);$")
OPENING, CLOSING = "([{", ")]}"


class Mutant:
    """The text from `start` to `end` of a line replaced. `code` is the line with its strings and comments blanked."""

    def __init__(self, path, number, line, code, start, end, replacement, statement):
        self.path, self.number, self.line, self.code = path, number, line, code
        self.start, self.end, self.replacement = start, end, replacement
        self.begins_statement = statement
        self.id = 0

    def new_line(self):
        return self.line[:self.start] + self.replacement + self.line[self.end:]

    def within(self, start, end):
        """What stands between two places of the line when the change is made there; nothing when it is elsewhere."""
        if start <= self.start and self.end <= end:
            return self.line[start:self.start] + self.replacement + self.line[self.end:end]
        return None

    def __str__(self):
        return f"{self.path}:{self.number}\n    - {self.line.strip()}\n    + {self.new_line().strip()}"


def without_texts(line):
    """The line with strings, characters and comments blanked, so that positions stay."""
    blanked = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])\'', lambda m: "\x01" * len(m.group()), line)
    return re.sub(r"(//.*|/\*.*?\*/|^\s*\*.*|^\s*/\*.*)", lambda m: "\x01" * len(m.group()), blanked)


def is_balanced(code):
    depth = 0
    for character in code:
        depth += (character in OPENING) - (character in CLOSING)
        if depth < 0:
            return False
    return depth == 0


def mutants_of(path, text):
    found = []
    platform = 0
    previous = ";"
    for number, line in enumerate(text.splitlines(), 1):
        code = without_texts(line)
        if re.match(r"\s*#\s*if.*_WIN32", code):
            platform += 1
        elif re.match(r"\s*#\s*(else|endif)", code) and platform:
            platform -= 1
        shown = code.rstrip(" \x01")
        begins = previous.endswith((";", "{", "}", ":")) and not previous.endswith("::")
        if shown:
            previous = shown
        if shown.endswith((";", "{", "}")):
            line, code = line[:len(shown)], shown
        if platform or re.match(r"\s*(#|template|using|namespace|static_assert|friend|typedef)", code):
            continue

        def add(start, end, replacement):
            found.append(Mutant(path, number, line, code, start, end, replacement, begins))

        for pattern, replacement in REPLACEMENTS:
            for match in re.finditer(pattern, code):
                add(match.start(), match.end(), replacement)
        match = CONDITION.search(code)
        if match and is_balanced(match.group(1)):
            add(match.start(1), match.end(1), f"!({line[match.start(1):match.end(1)]})")
        if CALL_OR_ASSIGNMENT.match(code) and "expectGuiThread" not in code:
            start = len(line) - len(line.lstrip())
            add(start, len(line), ";")
    return found


def is_chosen(mutant):
    return f"morvaneMutant({mutant.id})"


def chain(mutants, start, end, render, last):
    """`a ? A : b ? B : last`: one branch for each mutant that changes what is between the two places."""
    branches = [f"{is_chosen(mutant)} ? {render(mutant.within(start, end))} : " for mutant in mutants]
    return "".join(branches) + last


def choice(line, mutants, start, end, render):
    """The line with an expression of it chosen by what is between the places of the mutants."""
    text = line[start:end]
    return line[:start] + chain(mutants, start, end, render, render(text)) + line[end:]


def is_inside(mutants, start, end):
    return all(mutant.within(start, end) is not None for mutant in mutants)


def parts_of_for(match):
    """The places of the three parts of a for statement, or nothing when it is none of the plain kind."""
    pieces = match.group(1).split(";")
    if len(pieces) != 3:
        return None
    places = []
    start = match.start(1)
    for piece in pieces:
        places.append((start + len(piece) - len(piece.lstrip()), start + len(piece)))
        start += len(piece) + 1
    initial = re.match(r"(?:[\w:]+[ *&]+)+\w+ = ", pieces[0])
    return [(places[0][0] + initial.end(), places[0][1]), places[1], places[2]] if initial else None


def embedded_for(line, mutants, match):
    places = parts_of_for(match)
    if not places:
        return None
    renders = [lambda text: f"({text})", lambda text: f"bool({text})", lambda text: f"void({text})"]
    groups = [[mutant for mutant in mutants if mutant.within(*place) is not None] for place in places]
    if sum(len(group) for group in groups) != len(mutants):
        return None
    result = line
    for (start, end), render, group in reversed(list(zip(places, renders, groups))):
        if group:
            result = result[:start] + chain(group, start, end, render, render(line[start:end])) + result[end:]
    return result


def embedded_literals(line, mutants):
    """Truth values, numbers and negations can be chosen wherever they stand."""
    result = line
    for mutant in sorted(mutants, key=lambda each: -each.start):
        old = line[mutant.start:mutant.end]
        if old in ("true", "false", "0", "1"):
            new = f"({is_chosen(mutant)} ? {mutant.replacement} : {old})"
        elif old == "!":
            new = f"{is_chosen(mutant)} != !"
        else:
            return None
        result = result[:mutant.start] + new + result[mutant.end:]
    return result


def embedded(mutants):
    """One line that holds all these mutants of it and chooses when it runs, or nothing when the line has no such form."""
    line, code, begins = mutants[0].line, mutants[0].code, mutants[0].begins_statement
    if re.search(r"\b(Q_[A-Z]+|DESIGNABLE|STORED)\b", code):
        return None  # moc reads these itself
    match = CONDITION.search(code)
    if match and is_balanced(match.group(1)) and " = " not in match.group(1) and is_inside(mutants, *match.span(1)):
        return choice(line, mutants, *match.span(1), lambda text: f"bool({text})")
    match = FOR.match(code)
    if match:
        return embedded_for(line, mutants, match)
    whole = begins and code.rstrip(" \x01").endswith(";") and is_balanced(code)
    match = DECLARATION.match(code)
    if whole and match:
        inside = is_inside(mutants, *match.span(1))
        return choice(line, mutants, *match.span(1), lambda text: f"({text})") if inside else None
    if whole:
        branches = "".join(f"if ({is_chosen(mutant)}) {{ {mutant.new_line().strip()} }} else " for mutant in mutants)
        return f"{branches}{{ {line.strip()} }}"
    return embedded_literals(line, mutants)
