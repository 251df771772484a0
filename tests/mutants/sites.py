"""The places of a source that can be mutated, and what to write there so that a mutant is chosen when the program runs."""

import re
import sys

sys.path.append("/usr/lib/python3/dist-packages")  # where Debian has the bindings, whichever Python this is
from clang.cindex import CursorKind as Kind, TypeKind  # noqa: E402

COMPARISONS = {"<": ("Less", ["<=", ">="]), "<=": ("LessEqual", ["<", ">"]), ">": ("Greater", [">=", "<="]),
               ">=": ("GreaterEqual", [">", "<"]), "==": ("Equal", ["!="]), "!=": ("NotEqual", ["=="])}
ARITHMETIC = {"+": ("Plus", "-"), "-": ("Minus", "+"), "*": ("Times", "/"), "/": ("Over", "*"), "%": ("Modulo", "/"),
              "&": ("And", "|"), "|": ("Or", "&"), "<<": ("Left", ">>"), ">>": ("Right", "<<")}
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.CONVERSION_FUNCTION,
             Kind.FUNCTION_TEMPLATE}
SCOPES = {Kind.NAMESPACE, Kind.CLASS_DECL, Kind.STRUCT_DECL, Kind.CLASS_TEMPLATE, Kind.UNEXPOSED_DECL,
          Kind.CLASS_TEMPLATE_PARTIAL_SPECIALIZATION, Kind.LINKAGE_SPEC, Kind.FRIEND_DECL}
WHOLE = {TypeKind.SHORT, TypeKind.INT, TypeKind.LONG, TypeKind.LONGLONG, TypeKind.USHORT, TypeKind.UINT,
         TypeKind.ULONG, TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.SCHAR, TypeKind.UCHAR, TypeKind.CHAR32,
         TypeKind.CHAR16}
NUMBERS = WHOLE | {TypeKind.FLOAT, TypeKind.DOUBLE}


class Site:
    """One or two mutants of one piece of text: `before` and `after` go around it, `middle` takes the operator's place."""

    def __init__(self, start, end, before, after, changes, middle=None):
        self.start, self.end, self.before, self.after = start, end, before, after
        self.changes = changes  # what each of the mutants is, in words
        self.middle = middle    # (start, end, text)


class Finder:
    """Walks what the compiler has read of one file."""

    def __init__(self, text):
        self.text = text  # as bytes: the compiler counts these
        self.sites = []
        self.names = []

    def span(self, cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def of(self, cursor):
        start, end = self.span(cursor)
        return self.text[start:end].decode()

    def add(self, start, end, before, after, changes, middle=None):
        self.sites.append(Site(start, end, before, after, changes, middle))
        self.names.append("::".join(self.scope))

    def around(self, cursor, function, *changes):
        start, end = self.span(cursor)
        shown = " ".join(self.text[start:end].decode().split())
        self.add(start, end, f"::mutant::{function}(@, ", ")", [f"{shown} -> {change.format(shown)}" for change in changes])

    def file(self, cursor, path):
        self.scope = []
        for child in cursor.get_children():
            if child.location.file and child.location.file.name.endswith(path):
                self.declaration(child)

    def declaration(self, cursor):
        if cursor.kind in SCOPES:
            for child in cursor.get_children():
                self.declaration(child)
        elif cursor.kind in FUNCTIONS and cursor.is_definition():
            self.scope.append(cursor.spelling)
            for child in cursor.get_children():
                if child.kind not in (Kind.PARM_DECL, Kind.TEMPLATE_TYPE_PARAMETER, Kind.TEMPLATE_NON_TYPE_PARAMETER,
                                      Kind.TYPE_REF) and child.kind.is_statement() | child.kind.is_expression():
                    self.expression(child)
            self.scope.pop()
        elif cursor.kind == Kind.FIELD_DECL:
            self.scope.append(cursor.spelling)
            for child in cursor.get_children():
                if child.kind.is_expression() and self.span(child)[0] > cursor.location.offset:
                    self.expression(child)
            self.scope.pop()

    @staticmethod
    def bare(cursor):
        """Without the conversions that stand in no text."""
        while cursor.kind == Kind.UNEXPOSED_EXPR:
            inner = [child for child in cursor.get_children() if child.kind.is_expression()]
            if len(inner) != 1 or inner[0].extent != cursor.extent:
                break
            cursor = inner[0]
        return cursor

    def closing(self, opening):
        """Where the parenthesis is closed that is opened there."""
        depth = 0
        for match in re.finditer(rb'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])+\'|[()]', self.text[opening:]):
            depth += {b"(": 1, b")": -1}.get(match[0], 0)
            if depth == 0:
                return opening + match.start()
        raise ValueError("a parenthesis is left open")

    def between(self, left, right):
        start, end = self.span(left)[1], self.span(right)[0]
        gap = re.sub(rb"//[^\n]*", lambda m: b" " * len(m[0]), self.text[start:end])
        operator = gap.strip().decode()
        at = start + len(gap) - len(gap.lstrip())
        return operator, at, at + len(operator)

    def condition(self, cursor):
        """A condition that no operator decides is negated; the others have mutants of their operators."""
        leaf = self.bare(cursor)
        if not leaf.kind.is_expression() or leaf.kind in (Kind.BINARY_OPERATOR, Kind.UNARY_OPERATOR, Kind.PAREN_EXPR,
                                                          Kind.CXX_BOOL_LITERAL_EXPR):
            return
        if leaf.kind == Kind.CALL_EXPR and leaf.spelling.startswith("operator") and leaf.spelling[8:] in COMPARISONS:
            return
        if leaf.kind == Kind.UNEXPOSED_EXPR and any("operator<=>" in c.spelling for c in leaf.walk_preorder()):
            return
        start, end = self.span(cursor)
        shown = " ".join(self.of(cursor).split())
        self.add(start, end, "(::mutant::On(@) != static_cast<bool>(", "))", [f"{shown} -> !({shown})"])

    def dropped(self, cursor):
        """A statement that is an expression may be left out."""
        if not cursor.kind.is_expression() or self.text.startswith(b"assert(", self.span(cursor)[0]):
            return
        start, end = self.span(cursor)
        shown = " ".join(self.text[start:end].decode().split())
        if shown.startswith(("static_cast<void>", "(void)")):
            return
        if len(shown) > 90:
            shown = shown[:87] + "..."
        if self.bare(cursor).kind == Kind.CXX_THROW_EXPR:
            self.add(start, end, "::mutant::On(@) ? void() : ", "", [f"{shown} -> left out"])
        else:
            self.add(start, end, "::mutant::On(@) ? void() : void(", ")", [f"{shown} -> left out"])

    def operands(self, cursor):
        children = list(cursor.get_children())
        if cursor.kind == Kind.CALL_EXPR:
            name = cursor.spelling
            children = [c for c in children if not (c.kind in (Kind.UNEXPOSED_EXPR, Kind.DECL_REF_EXPR)
                                                    and c.spelling == name and self.of(c) in (name[8:], "!=", "<=", ">=",
                                                                                             "<", ">"))]
            children.sort(key=lambda c: c.extent.start.offset)
        return children

    def binary(self, cursor):
        children = self.operands(cursor)
        if len(children) != 2:
            return
        left, right = children
        operator, at, to = self.between(left, right)
        start, end = self.span(left)[0], self.span(right)[1]
        shown = " ".join(self.text[start:end].decode().split())
        if operator in COMPARISONS:
            function, others = COMPARISONS[operator]
            self.add(start, end, f"::mutant::{function}(@, ", ")", [f"{shown} [{operator} as {o}]" for o in others],
                     (at, to, ","))
        elif operator in ("&&", "||"):
            other = "||" if operator == "&&" else "&&"
            middle = ") != ::mutant::On(@)) ? static_cast<bool>(" if operator == "&&" else \
                ") != ::mutant::On(@)) ? !::mutant::On(@) : static_cast<bool>("
            after = ") : ::mutant::On(@))" if operator == "&&" else "))"
            self.add(start, end, "((static_cast<bool>(", after, [f"{shown} [{operator} as {other}]"], (at, to, middle))
        elif operator in ARITHMETIC:
            kind = cursor.type.get_canonical().kind
            both = all(self.bare(c).type.get_canonical().kind in NUMBERS for c in children)
            twips = cursor.type.get_canonical().spelling.endswith("host::Twips") and operator in "+-"
            if (kind in NUMBERS and both) or twips:
                function, other = ARITHMETIC[operator]
                self.add(start, end, f"::mutant::{function}(@, ", ")", [f"{shown} [{operator} as {other}]"], (at, to, ","))

    def returned(self, cursor):
        children = list(cursor.get_children())
        if len(children) != 1:
            return
        leaf = self.bare(children[0])
        kind = children[0].type.get_canonical().kind
        if kind == TypeKind.BOOL:
            self.condition(children[0])
        elif kind in NUMBERS and leaf.kind not in (Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL, Kind.DECL_REF_EXPR):
            self.around(children[0], "Up", "{} + 1")

    def expression(self, cursor):
        kind = cursor.kind
        if kind in (Kind.CXX_UNARY_EXPR, Kind.TYPE_REF, Kind.TEMPLATE_REF, Kind.STATIC_ASSERT, Kind.SIZE_OF_PACK_EXPR):
            return
        if self.text.startswith(b"assert(", self.span(cursor)[0]):
            return
        children = list(cursor.get_children())
        if kind == Kind.VAR_DECL:
            start, end = self.span(cursor)
            if b"constexpr" in self.text[start:cursor.location.offset]:
                return
            # What stands in front of the name is its type.
            children = [c for c in children if self.span(c)[0] > cursor.location.offset]
            if cursor.type.get_canonical().kind == TypeKind.CONSTANTARRAY:
                children = [c for c in children if c.kind != Kind.INTEGER_LITERAL]
        elif kind == Kind.CASE_STMT:
            children = children[1:]
        elif kind == Kind.LAMBDA_EXPR:
            children = [c for c in children if c.kind == Kind.COMPOUND_STMT]
        elif kind in (Kind.DECL_REF_EXPR, Kind.MEMBER_REF_EXPR, Kind.MEMBER_REF):
            # The arguments of a template are no expressions that run.
            children = [c for c in children if kind == Kind.MEMBER_REF_EXPR and self.span(c)[0] == self.span(cursor)[0]]
            self.constant(cursor)
        elif kind == Kind.COMPOUND_STMT:
            for child in children:
                self.dropped(child)
        elif kind == Kind.IF_STMT:
            start = self.span(cursor)[0]
            if re.match(rb"if\s+constexpr", self.text[start:]):
                children = children[1:]
            elif children[0].kind.is_expression():
                self.condition(children[0])
            closed = self.closing(self.text.index(b"(", start))
            for body in children:
                if self.span(body)[0] > closed:
                    self.dropped(body)
        elif kind == Kind.WHILE_STMT:
            if children[0].kind.is_expression():
                self.condition(children[0])
            self.dropped(children[-1])
        elif kind in (Kind.FOR_STMT, Kind.CXX_FOR_RANGE_STMT):
            self.dropped(children[-1])
            if kind == Kind.CXX_FOR_RANGE_STMT:
                # The iterators of the range stand in no text.
                children = [c for c in children if c.kind != Kind.VAR_DECL]
        elif kind == Kind.CONDITIONAL_OPERATOR:
            self.condition(children[0])
        elif kind == Kind.RETURN_STMT:
            self.returned(cursor)
        elif kind in (Kind.BREAK_STMT, Kind.CONTINUE_STMT):
            start, end = self.span(cursor)
            word = self.of(cursor)
            semicolon = self.text.index(b";", end) + 1
            self.add(start, semicolon, "{ if (!::mutant::On(@)) ", " }", [f"{word} -> left out"])
        elif kind == Kind.BINARY_OPERATOR:
            self.binary(cursor)
        elif kind == Kind.CALL_EXPR and cursor.spelling.startswith("operator"):
            if cursor.spelling.startswith('operator""'):
                return
            self.binary(cursor)
        elif kind == Kind.UNARY_OPERATOR:
            self.unary(cursor, children)
        elif kind == Kind.COMPOUND_ASSIGNMENT_OPERATOR and len(children) == 2:
            operator = self.between(*children)[0]
            if operator in ("+=", "-=") and cursor.type.get_canonical().kind in NUMBERS:
                other = "-=" if operator == "+=" else "+="
                shown = " ".join(self.of(cursor).split())
                start, end = self.span(children[1])
                self.add(start, end, "::mutant::Signed(@, ", ")", [f"{shown} [{operator} as {other}]"])
        elif kind == Kind.CXX_BOOL_LITERAL_EXPR:
            start, end = self.span(cursor)
            value = self.of(cursor)
            if value in ("true", "false"):
                self.add(start, end, "(::mutant::On(@) != ", ")",
                         [f"{value} -> {'false' if value == 'true' else 'true'}"])
        elif kind in (Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL):
            if re.fullmatch(r"[0-9][0-9a-fA-FxX.']*[uUlLfF]*", self.of(cursor)):
                self.around(cursor, "UpDown", "{} + 1", "{} - 1")
        elif kind == Kind.CHARACTER_LITERAL:
            if self.of(cursor).endswith("'"):
                self.around(cursor, "Up", "the next character")
        elif kind == Kind.STRING_LITERAL:
            if self.of(cursor).startswith('"') and self.of(cursor).endswith('"'):
                self.around(cursor, "Text", "another text")
            return
        for child in children:
            self.expression(child)

    def unary(self, cursor, children):
        text = self.of(cursor)
        start, end = self.span(cursor)
        if text.startswith("!") and not text.startswith("!=") and len(children) == 1:
            shown = " ".join(text.split())
            inner = self.span(children[0])[0]
            self.add(start, end, "(::mutant::On(@) == static_cast<bool>(", "))", [f"{shown} -> without the not"],
                     (start, inner, ""))
        elif text.startswith("-") and not text.startswith("--") and cursor.type.get_canonical().kind in NUMBERS:
            self.around(cursor, "Signed", "without the minus")

    def constant(self, cursor):
        """A use of a named constant."""
        if cursor.kind != Kind.DECL_REF_EXPR or not re.fullmatch(r"[\w:]+", self.of(cursor)):
            return
        target = cursor.referenced
        if target is None or target.kind != Kind.VAR_DECL or not re.fullmatch(r"k[A-Z]\w*", target.spelling):
            return
        spelling = cursor.type.get_canonical().spelling
        if cursor.type.get_canonical().kind in NUMBERS or spelling.endswith("host::Twips"):
            self.around(cursor, "Up", "{} + 1")
        elif re.match(r"(const )?std::basic_string_view<char", spelling):
            self.around(cursor, "Text", "another text")


def rewritten(text, sites, ids):
    """The text with its sites' mutants, numbered from `ids` on."""
    pieces = []  # (position, closers before openers, order, text)
    for order, (site, first) in enumerate(zip(sites, ids)):
        number = str(first)
        pieces.append((site.start, 2, order, site.before.replace("@", number)))
        pieces.append((site.end, 0, -order, site.after.replace("@", number)))
        if site.middle:
            pieces.append((site.middle[0], 1, order, (site.middle[1], site.middle[2].replace("@", number))))
    pieces.sort(key=lambda piece: piece[:3])
    out, at = [], 0
    for position, _, _, piece in pieces:
        if position > at:
            out.append(text[at:position])
            at = position
        if isinstance(piece, tuple):
            at = piece[0]
            piece = piece[1]
        out.append(piece.encode())
    out.append(text[at:])
    return b"".join(out)
