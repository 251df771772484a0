"""The mutants of tables that the compiler makes: written into them when the program starts."""

import re

from sites import Kind, NUMBERS, TypeKind


def parts(text):
    """What the commas of a list in braces part."""
    found, depth, start = [], 0, 1
    for match in re.finditer(r'//[^\n]*|"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])+\'|[(){}\[\],]', text[1:-1]):
        mark = match[0]
        if mark in "({[":
            depth += 1
        elif mark in ")}]":
            depth -= 1
        elif mark == "," and depth == 0:
            found.append(text[start:1 + match.start()])
            start = 1 + match.end()
    found.append(text[start:-1])
    without = [re.sub(r"(?m)^\s*//[^\n]*$", "", part).strip() for part in found]
    return [part for part in without if part]


def element_of(kind):
    """The type of the elements of an array, or nothing."""
    canonical = kind.get_canonical()
    if canonical.kind == TypeKind.CONSTANTARRAY:
        return canonical.element_type
    if re.match(r"(const )?std::array<", canonical.spelling):
        return canonical.get_template_argument_type(0)
    return None


def leaves(kind, text, path, row):
    """Each value of the list: where it stands, its type, its text, and the row that it belongs to."""
    element = element_of(kind)
    if element is not None:
        items = parts(text)
        if len(items) == 1 and items[0].startswith("{") and not canonical_array(kind):
            items = parts(items[0])  # the braces of std::array and those of the array in it
        for i, item in enumerate(items):
            yield from value(element, item, f"{path}[{i}]", row or item)
        return
    fields = [field for field in kind.get_canonical().get_declaration().type.get_fields()]
    items = parts(text)
    # A macro at the front stands for as many fields as would be left over.
    if items and re.match(r"[A-Z_]+\(", items[0]):
        items = items[:1] * (len(fields) - len(items)) + items
    for i, item in enumerate(items):
        named = re.match(r"\.(\w+)\s*=\s*", item)
        if named:
            field = next(f for f in fields if f.spelling == named[1])
            item = item[named.end():]
        else:
            field = fields[i]
        yield from value(field.type, item, f"{path}.{field.spelling}", row)


def canonical_array(kind):
    return kind.get_canonical().kind == TypeKind.CONSTANTARRAY


def value(kind, item, path, row):
    if item.startswith("{"):
        yield from leaves(kind, item, path, row)
    else:
        yield kind, item, path, row


def mutants(kind, path):
    """The values that a leaf may have instead, and what to call them."""
    canonical = kind.get_canonical()
    if canonical.kind == TypeKind.BOOL:
        return [(f"!{path}", "flipped")]
    if re.search(r"\.place\.\w+$", path):
        return [(f"{path} + 15", "+ 15")]
    if canonical.kind == TypeKind.CHAR32:
        return [(f"{path} + 1", "+ 1"), (f"{path} - 1", "- 1")]
    if canonical.kind in NUMBERS:
        return [(f"static_cast<std::remove_cvref_t<decltype({path})>>({path} + 1)", "+ 1")]
    if "basic_string_view<char" in canonical.spelling:
        return [(f"std::string_view(mutant::Longer({path}))", "another text")]
    if canonical.spelling.endswith("frame::Format"):
        return [(f"static_cast<brivane::frame::Format>((static_cast<int>({path}) + 1) % 6)", "the next")]
    return []


def tables(cursor, path, scope=""):
    """The tables that a file makes: name in full, type, text of the list, line."""
    for child in cursor.get_children():
        if not child.location.file or not child.location.file.name.endswith(path):
            continue
        if child.kind == Kind.NAMESPACE:
            yield from tables(child, path, f"{scope}{child.spelling}::" if child.spelling else scope)
        elif child.kind == Kind.VAR_DECL:
            with open(child.location.file.name, "rb") as file:
                text = file.read()[child.location.offset:child.extent.end.offset].decode()
            brace = text.find("{")
            record = child.type.get_canonical().get_declaration().spelling in ("Style", "Design")
            if brace >= 0 and (element_of(child.type) is not None or record) and "=" not in text[:brace].rstrip(" ="):
                yield scope + child.spelling, child.type, text[brace:]


def sites(cursor, path):
    """What can be written into the tables of a file: the statement, and the mutant in words."""
    for name, kind, text in tables(cursor, path):
        for leaf, item, place, row in leaves(kind, text, name, None):
            for other, change in mutants(leaf, place):
                named = re.search(r'\.name = "(\w+)"', row or "")
                index = re.search(r"\.index = ([\w:]+)", row or "")
                short = place.rsplit("::", 1)[-1]
                who = f" ({named[1]}{' ' + index[1] if index else ''})" if named else ""
                shown = " ".join(item.split())
                shown = shown if len(shown) <= 50 else shown[:47] + "..."
                yield f"mutant::Write({place}, {other});", f"{short}{who}: {shown} -> {change}"
