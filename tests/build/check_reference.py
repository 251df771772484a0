#!/usr/bin/env python3
"""check_reference.py ROOT DOXYGEN DOXYFILE WORK HEADER...: builds the reference anew and holds it to its rules.

Doxygen has no warning. Every public name, an enumerator too, has a comment. Every header has a page. Every link inside the
reference leads somewhere, and so do those to what is installed beside it. At last a header with mistakes is built in the
same way, so that a rule that finds nothing any more is found.
"""

import os
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree

PLANTED = """#pragma once

namespace brivane::host {

/// Documented, as its members are not.
class Planted {
 public:
  void Nameless();
  /// Refers to \\ref nothing_of_that_name.
  void Reference();
};

/// An enumeration.
enum class Numbers { One };

}  // namespace brivane::host
"""


def build(doxygen, doxyfile, work, **settings):
    """The reference in WORK; what Doxygen warned of."""
    os.makedirs(work)
    settings.update(OUTPUT_DIRECTORY=work, GENERATE_TAGFILE="", GENERATE_XML="YES", XML_PROGRAMLISTING="NO")
    with open(doxyfile, encoding="utf-8") as file:
        text = file.read() + "".join(f'\n{name} = "{value}"' for name, value in settings.items())
    made = subprocess.run([doxygen, "-"], input=text, stderr=subprocess.PIPE, text=True, check=False)
    if made.returncode:
        sys.exit(f"doxygen ended with {made.returncode}: {made.stderr}")
    return [line for line in made.stderr.splitlines() if line.strip()]


def compounds(work):
    folder = os.path.join(work, "xml")
    for name in sorted(os.listdir(folder)):
        if name.endswith(".xml") and name != "index.xml":
            yield from xml.etree.ElementTree.parse(os.path.join(folder, name)).getroot().iter("compounddef")


def words(element, tag):
    found = element.find(tag)
    return "" if found is None else "".join(found.itertext()).strip()


def needs_comment(element):
    """Not what a class has of itself: its end, and its default constructor."""
    name = words(element, "name")
    return element.get("prot") != "private" and not name.startswith("~") and words(element, "argsstring") != "()=default"


def names_without_comment(work):
    found = [compound for compound in compounds(work) if compound.get("kind") in ("class", "struct", "namespace")]
    private = {inner.get("refid") for compound in found for inner in compound.iter("innerclass")
               if inner.get("prot") == "private"}
    for compound in found:
        name = words(compound, "compoundname")
        if compound.get("id") in private or not name.startswith("brivane"):
            continue
        for element in [compound, *compound.iter("memberdef"), *compound.iter("enumvalue")]:
            told = words(element, "briefdescription") + words(element, "detaileddescription")
            if needs_comment(element) and not told:
                yield name if element is compound else f"{name}::{words(element, 'name')}"


def headers_with_a_page(work):
    for compound in compounds(work):
        page = os.path.join(work, "html", compound.get("id") + ".html")
        if compound.get("kind") == "file" and os.path.exists(page):
            yield compound.find("location").get("file")


def read(path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def dead_links(work, root):
    html = os.path.join(work, "html")
    pages = {name: read(os.path.join(html, name)) for name in os.listdir(html) if name.endswith(".html")}
    anchors = {name: set(re.findall(r'\b(?:id|name)="([^"]+)"', text)) for name, text in pages.items()}
    for name, text in sorted(pages.items()):
        for target in set(re.findall(r'\b(?:href|src)="([^"]+)"', text)):
            # Doxygen points to the classes inside one also where it leaves them out, as they are private.
            if re.match(r"[a-z]+:", target) or target == "#nested-classes":
                continue
            file, _, anchor = target.partition("#")
            if file.startswith("../"):
                alive = os.path.exists(os.path.join(root, file[len("../"):]))
            elif file in pages or not file:
                alive = not anchor or anchor in anchors[file or name]
            else:
                alive = os.path.exists(os.path.join(html, file))
            if not alive:
                yield f"{name}: {target}"


def main(root, doxygen, doxyfile, work, *headers):
    shutil.rmtree(work, ignore_errors=True)
    whole = os.path.join(work, "whole")
    wrong = [f"warning: {line}" for line in build(doxygen, doxyfile, whole)]
    wrong += [f"no comment: {name}" for name in names_without_comment(whole)]
    missing = {os.path.relpath(header, root) for header in headers} - set(headers_with_a_page(whole))
    wrong += [f"no page: {header}" for header in sorted(missing)]
    wrong += [f"dead link: {link}" for link in dead_links(whole, root)]

    planted = os.path.join(work, "brivane", "Planted.h")
    os.makedirs(os.path.dirname(planted))
    with open(planted, "w", encoding="utf-8") as file:
        file.write(PLANTED)
    small = os.path.join(work, "small")
    warnings = "\n".join(build(doxygen, doxyfile, small, INPUT=planted, USE_MDFILE_AS_MAINPAGE=""))
    for mistake in ("Member Nameless", "nothing_of_that_name"):
        if mistake not in warnings:
            wrong.append(f"a planted mistake was not found: {mistake}")
    if "brivane::host::One" not in set(names_without_comment(small)):
        wrong.append("a planted enumerator without a comment was not found")

    print(*wrong, f"{len(headers)} headers, {len(wrong)} mistakes", sep="\n")
    shutil.rmtree(work)
    return 1 if wrong or not headers else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
