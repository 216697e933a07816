"""What check-layers and check-style know about sources: files, and for C++ includes, comments, functions.

The scanner reads code as it is written here (formatted, no brace hidden in a macro); it is no compiler.
"""

import bisect
import re
import subprocess
from collections import namedtuple
from pathlib import Path

Include = namedtuple("Include", "line name quoted")
Token = namedtuple("Token", "text line")
Function = namedtuple("Function", "name line last parameters nesting")

_LEXER = re.compile(
    r"""(?P<comment>//(?:\\\n|[^\n])*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
      | (?P<string>(?:u8|[uUL])?R"(?P<tag>[^(\s]*)\(.*?\)(?P=tag)"|(?:u8|[uUL])?"(?:\\.|[^"\\\n])*"
                  |(?<![0-9a-zA-Z_])[uUL]?'(?:\\.|[^'\\\n])+')
      | (?P<word>\w(?:\w|'(?=\w)|\.(?=\d))*)
      | (?P<sign>::|->|[^\s\w])""",
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)
_INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"]+)[>"]')


def files_of(root):
    """The repository's files below root, new ones too, as paths relative to it."""
    command = ["git", "-c", "safe.directory=*", "-C", str(root)]
    command += ["ls-files", "-z", "--cached", "--others", "--exclude-standard"]
    names = subprocess.run(command, check=True, capture_output=True).stdout.decode().split("\0")
    return [Path(name) for name in names if name and (Path(root) / name).is_file()]


def is_cpp(path):
    return path.suffix in (".cpp", ".h")


def is_web(path):
    """Whether it is code of the published page or of its tests; Qt has .ts, too, for translations."""
    return path.suffix in (".ts", ".mjs", ".css") and path.parts[1:2] == ("Web",)


class Source:
    """One C++ text, taken apart."""

    def __init__(self, text):
        self.lines = text.splitlines()
        self.includes = []
        self.comments = []  # tokens, with their text
        self.directives = []
        self.tokens = []
        line_starts = [0] + [match.end() for match in re.finditer("\n", text)]
        for match in _LEXER.finditer(text):
            token = Token(match.group(), bisect.bisect_right(line_starts, match.start()))
            if match.lastgroup == "comment":
                self.comments.append(token)
            elif match.lastgroup == "directive":
                self._directive(token)
            elif match.group("string") is not None:
                self.tokens.append(Token('""', token.line))
            else:
                self.tokens.append(token)

    def _directive(self, token):
        self.directives.append(token)
        include = _INCLUDE.match(token.text)
        if include:
            self.includes.append(Include(token.line, include.group(2), include.group(1) == '"'))

    def comment_lines(self):
        lines = set()
        for comment in self.comments:
            lines.update(range(comment.line, comment.line + comment.text.count("\n") + 1))
        return len(lines)

    def functions(self):
        return _Parser(self.tokens).functions


_OPEN, _CLOSE = "([{", ")]}"
_CLASS_KEYS = {"class", "struct", "union", "enum"}
_WITH_CONDITION = {"if", "for", "while", "switch", "catch"}
_NOT_A_NAME = {"noexcept", "decltype", "alignas", "__attribute__", "requires"}


class _Parser:
    def __init__(self, tokens):
        self.tokens = tokens
        self.at = 0
        self.functions = []
        while self.at < len(tokens):
            self._scope()
            self.at += 1  # a closing brace too many

    def _text(self, offset=0):
        index = self.at + offset
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    # Namespaces and classes: a head, then `;` or a block.

    def _scope(self):
        head = []
        while self.at < len(self.tokens) and self._text() != "}":
            text = self._text()
            if text == ";" or (text == ":" and len(head) == 1):  # the end, or `public:`
                head = []
                self.at += 1
            elif text == "(" or text == "[":
                head += self._group()
            elif text == "{":
                head = self._block_after(head)
            else:
                head.append(self.tokens[self.at])
                self.at += 1

    def _group(self):
        """Takes a bracketed group and gives its tokens."""
        first, depth = self.at, 0
        while self.at < len(self.tokens):
            text = self._text()
            depth += (text in _OPEN) - (text in _CLOSE)
            self.at += 1
            if depth == 0:
                break
        return self.tokens[first:self.at]

    def _block_after(self, head):
        kind = _kind_of_block(head)
        if kind == "values":
            return head + self._group()
        first = self.tokens[self.at].line
        self.at += 1
        if kind == "scope":
            self._scope()
        else:
            nesting = self._statements(0)
            self._add_function(head or [Token("", first)], nesting)
        self.at += 1
        return []

    def _add_function(self, head, nesting):
        last = self.tokens[min(self.at, len(self.tokens) - 1)].line
        name, line, parameters = _signature(head)
        self.functions.append(Function(name, line, last, parameters, nesting))

    # Function bodies. Each returns the deepest nesting it saw; `depth` is the one it stands at.

    def _statements(self, depth):
        deepest = depth
        while self.at < len(self.tokens) and self._text() != "}":
            deepest = max(deepest, self._statement(depth))
        return deepest

    def _statement(self, depth):
        text = self._text()
        if text == "{":
            return self._block(depth)
        if text in _WITH_CONDITION:
            return self._controlled(depth)
        if text in ("else", "do", "try"):
            self.at += 1
            if text == "else" and self._text() == "if":
                return self._statement(depth)
            return self._body(depth)
        if text in ("case", "default"):
            while self.at < len(self.tokens) and self._text() != ":":
                self.at += 1
            self.at += 1
            return depth
        return self._expression(depth, ";")

    def _block(self, depth):
        self.at += 1
        deepest = self._statements(depth)
        self.at += 1
        return deepest

    def _controlled(self, depth):
        while self._text() != "(" and self.at < len(self.tokens):
            self.at += 1
        self.at += 1
        deepest = self._expression(depth, ")")
        if self._text() == ";":  # do ... while ();
            self.at += 1
            return deepest
        return max(deepest, self._body(depth))

    def _body(self, depth):
        """What a control statement governs: one level deeper, with braces or without."""
        if self._text() == "{":
            return self._block(depth + 1)
        return max(depth + 1, self._statement(depth + 1))

    def _expression(self, depth, end):
        """Up to and with `end`; a closing brace ends it too. Bodies of lambdas lie one level deeper."""
        deepest, stack = depth, []
        while self.at < len(self.tokens):
            text = self._text()
            if not stack and text == "}":
                return deepest
            if not stack and text == end:
                self.at += 1
                return deepest
            if text == "{" and self._opens_lambda():
                deepest = max(deepest, self._block(depth + 1))
                continue
            if text in _OPEN:
                stack.append(text)
            elif text in _CLOSE and stack:
                stack.pop()
            self.at += 1
        return deepest

    def _opens_lambda(self):
        index = self.at - 1
        if any(self._text(-back) == "->" for back in range(1, 9)):
            while index >= 0 and self.tokens[index].text != "->":
                index -= 1
            index -= 1
        while index >= 0 and self.tokens[index].text in ("mutable", "noexcept", "constexpr"):
            index -= 1
        if self.tokens[index].text == ")":
            index = _opening(self.tokens, index) - 1
        if index < 0 or self.tokens[index].text != "]":
            return False
        before = self.tokens[_opening(self.tokens, index) - 1].text
        return before == "return" or not re.match(r"\w|\]|\)", before)


def _opening(tokens, index):
    """The index of the bracket that the closing one at `index` belongs to."""
    depth = 0
    while index >= 0:
        depth += (tokens[index].text in _CLOSE) - (tokens[index].text in _OPEN)
        if depth == 0:
            return index
        index -= 1
    return 0


def _outline(head):
    """The head's texts outside of brackets and template parameters, each with its index."""
    outline, depth, angles = [], 0, 0
    for index, token in enumerate(head):
        text = token.text
        if text in _CLOSE:
            depth -= 1
        if depth == 0 and text == "<" and index and head[index - 1].text == "template":
            angles = 1
        elif depth == 0 and angles:
            angles += (text == "<") - (text == ">")
        elif depth == 0:
            outline.append((text, index))
        if text in _OPEN:
            depth += 1
    return outline


def _kind_of_block(head):
    outline = [text for text, _ in _outline(head)]
    after = outline[len(outline) - outline[::-1].index(")"):] if ")" in outline else outline
    if "namespace" in after or outline[:1] == ["extern"] and len(outline) == 2:
        return "scope"
    if _CLASS_KEYS & {*after, *outline[:1]}:
        return "values" if "enum" in after else "scope"
    if ")" not in outline or _assigns(outline):
        return "values"
    if _initialises(outline) and re.match(r"\w|>", outline[-1]):
        return "values"
    return "function"


def _assigns(outline):
    return any(
        text == "=" and "operator" not in outline[max(0, index - 3):index]
        for index, text in enumerate(outline))


def _initialises(outline):
    """Whether a constructor's member list has begun."""
    return any(text == ":" and outline[index - 1] in (")", "noexcept")
               for index, text in enumerate(outline) if index)


def _signature(head):
    """Name, first line and number of parameters of a function's head."""
    outline = _outline(head)
    texts = [text for text, _ in outline]
    end = len(texts)
    for stop in (":", "->"):
        if stop in texts and ")" in texts[:texts.index(stop)]:
            end = min(end, texts.index(stop))
    opens = [position for position in range(1, end)
             if texts[position] == "(" and texts[position - 1] not in _NOT_A_NAME]
    if not opens:
        return "", head[0].line, 0
    chosen = opens[-1]
    earlier = [position for position in range(chosen - 1) if texts[position] == ")"]
    if earlier and texts[earlier[-1] - 2:earlier[-1]] != ["operator", "("]:
        line = head[outline[earlier[-1] + 1][1]].line
    else:
        line = head[0].line
    name = "operator()" if texts[chosen - 1] == ")" else texts[chosen - 1]
    return name, line, _parameters(head, outline[chosen][1])


def _parameters(head, opening):
    depth, angles, count, any_token = 0, 0, 0, False
    for index in range(opening, len(head)):
        text = head[index].text
        if text in _OPEN:
            depth += 1
        elif text in _CLOSE:
            depth -= 1
            if depth == 0:
                break
        elif depth == 1:
            any_token = any_token or text != "void" or head[index + 1].text != ")"
            angles = max(0, angles + (text == "<") - (text == ">"))
            count += text == "," and angles == 0
    return count + any_token
