#!/usr/bin/env python3
"""check-schema.py PROGRAM SCHEMA BAD_DOCUMENTS GOOD_DOCUMENT...

Holds `--check` and the JSON Schema against each other: what one refuses the other refuses, but for the
documents that the table marks as past what a schema can say.
"""
import json
import subprocess
import sys

import jsonschema

DOSSIER = '"dossier": {"personen": [{}]}'


def bad_documents(path):
    """The name, the document, and whether a schema can refuse it."""
    name, lines = None, []
    for line in open(path, encoding="utf-8"):
        if line.startswith("== "):
            name, lines = line[3:].strip(), []
        elif line.startswith("-> "):
            yield name, "".join(lines).replace("$DOSSIER", DOSSIER), not name.endswith("*")
            name = None
        elif name is not None:
            lines.append(line)


def main():
    program, schema_path, table, *good = sys.argv[1:]
    schema = json.load(open(schema_path, encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)

    def checked(document):
        return subprocess.run([program, "--check", "-"], input=document.encode(), capture_output=True).returncode == 0

    wrong = []
    refused = accepted = 0
    for name, document, by_schema in bad_documents(table):
        if checked(document):
            wrong.append(f"--check accepts: {name}")
        if by_schema and validator.is_valid(json.loads(document)):
            wrong.append(f"the schema accepts: {name}")
        refused += by_schema
    for path in good:
        document = open(path, encoding="utf-8").read()
        if not checked(document):
            wrong.append(f"--check refuses: {path}")
        error = jsonschema.exceptions.best_match(validator.iter_errors(json.loads(document)))
        if error:
            wrong.append(f"the schema refuses: {path}: {error.json_path}: {error.message}")
        accepted += 1
    print(f"{refused} documents refused by both, {accepted} accepted by both, {len(wrong)} disagreements")
    print("\n".join(wrong))
    return 1 if wrong or not refused or not accepted else 0


if __name__ == "__main__":
    sys.exit(main())
