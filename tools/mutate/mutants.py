"""The mutants of a source file: one small change each, found with a lexer."""

import hashlib
import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<blank>\s+)
      | (?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>(?<![^\n])\#(?:\\\n|[^\n])*)
      | (?P<string>(?:u8|[uUL])?R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"|(?:u8|[uUL])?"(?:\\.|[^"\\])*")
      | (?P<character>(?:u8|[uUL])?'(?:\\.|[^'\\])+')
      | (?P<real>(?:\d[\d']*\.[\d']*|\.\d+)(?:[eE][-+]?\d+)?[fFlL]?|\d+[eE][-+]?\d+[fFlL]?)
      | (?P<integer>0[xX][\dA-Fa-f']+[uUlL]*|\d[\d']*[uUlL]*)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<operator><<=|>>=|<=>|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
    """, re.VERBOSE | re.DOTALL)

# Taken as binary where blanks stand on both sides, which sets them off from templates,
# pointers and references.
BINARY = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||",
          "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&",
          "^": "|", "<<": ">>", ">>": "<<", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=",
          "%=": "*=", "&=": "|=", "|=": "&=", "^=": "|=", "<<=": ">>=", ">>=": "<<="}
ANYWHERE = {"++": "--", "--": "++", "true": "false", "false": "true"}
NOT_STATEMENTS = {"return", "using", "const", "constexpr", "static", "auto", "typedef", "case",
                  "default", "if", "else", "for", "while", "do", "switch", "goto", "public",
                  "private", "protected", "friend", "namespace", "class", "struct", "enum",
                  "template", "extern", "static_assert", "throw", "virtual", "explicit"}


@dataclass
class Token:
    kind: str
    text: str
    start: int
    spaced: bool = False  # blanks on both sides
    code: bool = False  # in a body or in data, so that it may be changed


@dataclass(frozen=True)
class Mutant:
    file: str  # from the root of the tree
    start: int
    end: int
    text: str  # instead of what stands from start to end
    line: int
    source: str  # the line, stripped
    change: str  # in words
    again: int  # how many of the same source and change stand before it in the file

    @property
    def key(self):
        return f"{self.file}\t{self.source}\t{self.change}\t{self.again}"

    def rank(self, seed):
        """In a sample, the lowest ranks win: other mutants stay when a line changes."""
        return hashlib.sha1(f"{seed}\t{self.key}".encode()).hexdigest()

    def apply(self, content):
        return content[:self.start] + self.text + content[self.end:]


def tokens_of(content):
    tokens = []
    blank = True
    for match in TOKEN.finditer(content):
        kind = match.lastgroup if match.lastgroup != "mark" else "string"
        if kind in ("blank", "comment", "directive"):
            blank = True
            continue
        following = content[match.end():match.end() + 1]
        tokens.append(Token(kind, match.group(), match.start(), blank and following in " \n"))
        blank = False
    return tokens


def matching(tokens, at):
    """The index of the bracket that closes the one at `at`."""
    closing = {"(": ")", "{": "}", "[": "]", "<": ">"}[tokens[at].text]
    depth = 0
    for i in range(at, len(tokens)):
        depth += (tokens[i].text == tokens[at].text) - (tokens[i].text == closing)
        if depth == 0:
            return i
    return len(tokens) - 1


def mark_code(tokens, with_data):
    """Marks what stands in the bodies of functions and, if wanted, in the values of data."""
    i = head = 0  # head: the first token of the declaration
    depth, data, initialisers = 0, False, False
    while i < len(tokens):
        text = tokens[i].text
        if text == "template" and tokens[i + 1].text == "<":
            i = head = matching(tokens, i + 1) + 1
            continue
        if text in ("static_assert", "noexcept", "alignas") and tokens[i + 1].text == "(":
            i = matching(tokens, i + 1) + 1
            continue
        if text == "{" and depth == 0:
            words = [t.text for t in tokens[head:i]]
            named = {"namespace", "class", "struct", "union", "enum"} & set(words)
            if "extern" in words[:1] and "(" not in words or named and "(" not in words:
                i = head = i + 1 if "enum" not in named else matching(tokens, i) + 1
                continue
            end = matching(tokens, i)
            if not data or with_data:
                mark_body(tokens, i, end)
            i = end + 1
            if not data:
                head, initialisers = i, False
            continue
        if text in ";}" and depth == 0:
            head, data, initialisers = i + 1, False, False
        elif text == "=" and depth == 0 and tokens[i - 1].text != "operator":
            data = True
        elif text == ":" and depth == 0 and tokens[i - 1].text in (")", "noexcept"):
            initialisers = True
        depth += (text == "(") - (text == ")")
        tokens[i].code = data and with_data or initialisers
        i += 1


def mark_body(tokens, begin, end):
    i = begin + 1
    while i < end:
        if tokens[i].text in ("static_assert", "alignas") and tokens[i + 1].text == "(":
            i = matching(tokens, i + 1) + 1
            continue
        tokens[i].code = True
        i += 1


def integers_near(text):
    digits, suffix = re.fullmatch(r"(0[xX][\dA-Fa-f']+|\d[\d']*)([uUlL]*)", text).groups()
    value = int(digits.replace("'", ""), 0) if digits.strip("0'") else 0
    shape = hex if digits[:2] in ("0x", "0X") else str
    return [shape(value + 1) + suffix] + ([shape(value - 1) + suffix] if value else [])


def changes(content, tokens):
    """(start, end, replacement, words) of every change."""
    for i, token in enumerate(tokens):
        if not token.code:
            continue
        text, start, end = token.text, token.start, token.start + len(token.text)
        before = tokens[i - 1].text
        if before == "operator":
            continue
        if text in BINARY and token.spaced:
            yield start, end, BINARY[text], None
        elif text in ANYWHERE:
            yield start, end, ANYWHERE[text], None
        elif text == "!" or text == "-" and content[end] != " " and (
                before in "(,=?:{[<>" or before == "return" or tokens[i - 1].spaced):
            yield start, end, "", f"removed `{text}` before `{tokens[i + 1].text}`"
        elif token.kind == "integer":
            for near in integers_near(text):
                yield start, end, near, None
        elif token.kind == "real":
            zero = not re.search("[1-9]", re.split("[eE]", text)[0])
            yield start, end, "1.0" if zero else f"({text} * 2)", None
        elif token.kind == "character":
            yield start, end, f"({text} + 1)", None
        elif text == "if" and tokens[i + 1].text == "(":
            inner = tokens[i + 1].start + 1
            stop = tokens[matching(tokens, i + 1)].start
            if ";" not in content[inner:stop]:
                yield inner, stop, f"!({content[inner:stop]})", "negated the condition"
        if before in (";", "{", "}", ")", "else", ":") and statement_end(tokens, i):
            stop = tokens[statement_end(tokens, i)].start
            words = " ".join(content[start:stop].split())
            if before != ")" or closes_condition(tokens, i - 1):
                yield start, stop, "", f"removed `{words}`"


def closes_condition(tokens, at):
    depth = 0
    for i in range(at, -1, -1):
        depth += (tokens[i].text == ")") - (tokens[i].text == "(")
        if depth == 0:
            return tokens[i - 1].text in ("if", "for", "while")
    return False


def statement_end(tokens, at):
    """The index of the `;` of a statement that can be left out, or None."""
    first = tokens[at]
    if first.text in ("break", "continue") and tokens[at + 1].text == ";":
        return at + 1
    if first.text in NOT_STATEMENTS or not (
            first.kind == "word" or first.text in ("++", "--", "*", "(")):
        return None
    effect = first.text in ("++", "--")
    i = at
    while i < len(tokens) and tokens[i].text not in (";", "{", "}"):
        following = tokens[i + 1]
        plain = first.kind == "word" and i < at + 6 and not effect
        if plain and (tokens[i].kind == "word" or tokens[i].text in ">*&") and (
                following.kind == "word"):
            return None  # a declaration
        effect = effect or tokens[i].text in ("(", "=", "++", "--") or (
            tokens[i].text in BINARY and tokens[i].text.endswith("="))
        i = matching(tokens, i) if tokens[i].text in ("(", "[") else i
        i += 1
    return i if effect and i < len(tokens) and tokens[i].text == ";" else None


def mutants_of(file, content):
    tokens = tokens_of(content)
    mark_code(tokens, file.endswith(".cpp") or "/internal/" in file)
    lines = content.split("\n")
    seen = {}
    for start, end, text, words in changes(content, tokens):
        line = content.count("\n", 0, start) + 1
        source = lines[line - 1].strip()
        if words is None:
            words = f"`{content[start:end]}` to `{text}`"
            column = start - content.rfind("\n", 0, start) - 1
            nth = len(re.findall(re.escape(content[start:end]), lines[line - 1][:column]))
            words += f", no. {nth + 1}" if nth else ""
        again = seen.setdefault((source, words), 0)
        seen[source, words] += 1
        yield Mutant(file, start, end, text, line, source, words, again)
