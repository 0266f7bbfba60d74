"""Validates the outputs OUT_DIR/COMMAND.NUMBER.json with SCHEMA_DIR/COMMAND.schema.json.

usage: validate.py SCHEMA_DIR OUT_DIR

Prints a line for each thing that is wrong, and fails when there is any.
"""

import copy
import json
import pathlib
import sys

from jsonschema import Draft202012Validator

UNEXPECTED = [{"unexpected": []}]


def load(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def bundled(path):
    """One schema that holds the file and all that it refers to, each under its name."""
    files = {}

    def embed(name):
        if name in files:
            return
        files[name] = load(path.parent / name)
        files[name].pop("$id", None)
        for _, node in nodes(files[name]):
            if isinstance(node, dict) and isinstance(node.get("$ref"), str):
                other, _, pointer = node["$ref"].partition("#")
                embed(other or name)
                node["$ref"] = f"#/$defs/{other or name}{pointer}"

    embed(path.name)
    return {"$defs": files, "$ref": f"#/$defs/{path.name}"}


def nodes(value, path=()):
    """Every value in a JSON document with the keys that lead to it."""
    yield path, value
    if isinstance(value, dict):
        for key, child in value.items():
            yield from nodes(child, path + (key,))
    elif isinstance(value, list):
        for index, child in enumerate(value):
            yield from nodes(child, path + (index,))


def schema_faults(schema):
    """What our schemas have in common beyond the rules of JSON Schema."""
    for key in ("$schema", "title", "description"):
        if key not in schema:
            yield f"has no {key}"
    for path, node in nodes(schema):
        # What is below "properties" or "$defs" is named by us, and "if" only looks.
        is_schema = isinstance(node, dict) and (not path or path[-1] not in ("properties", "$defs"))
        is_condition = any(key in ("if", "then", "else") for key in path)
        if not is_schema or is_condition or node.get("type") != "object":
            continue
        place = "/".join(map(str, path)) or "its root"
        if "additionalProperties" not in node:
            yield f"leaves open what else may stand in {place}"
        if "properties" in node and "required" not in node:
            yield f"requires nothing in {place}"
        for name, member in node.get("properties", {}).items():
            # A list of values tells enough by itself.
            told = {"description", "$ref", "const", "enum"}
            if isinstance(member, dict) and not told & set(member):
                yield f"does not describe {place}/{name}"


def changed(document, path, change):
    result = copy.deepcopy(document)
    parent = result
    for key in path[:-1]:
        parent = parent[key]
    change(parent, path[-1])
    return result


def variants(document):
    """Documents that are wrong in one place, each with what is wrong."""
    for path, node in nodes(document):
        place = "/".join(map(str, path))
        if isinstance(node, dict):
            variant = copy.deepcopy(document)
            target = variant
            for key in path:
                target = target[key]
            target["unexpected"] = UNEXPECTED
            yield f"something unexpected in '{place}'", variant
        if path:
            yield (
                f"a value of another type for '{place}'",
                changed(document, path, lambda parent, key: parent.__setitem__(key, UNEXPECTED)),
            )
        if path and isinstance(path[-1], str):
            yield (
                f"nothing for '{place}'",
                changed(document, path, lambda parent, key: parent.__delitem__(key)),
            )


def main():
    schema_directory = pathlib.Path(sys.argv[1]).resolve()
    faults = []
    count = 0
    for path in sorted(schema_directory.glob("*.schema.json")):
        schema = load(path)
        Draft202012Validator.check_schema(schema)
        faults += [f"{path.name}: {fault}" for fault in schema_faults(schema)]

    for path in sorted(pathlib.Path(sys.argv[2]).glob("*.json")):
        schema_path = schema_directory / (path.name.split(".")[0] + ".schema.json")
        try:
            document = load(path)
        except ValueError as error:
            faults.append(f"{path.name}: {error}")
            continue
        validator = Draft202012Validator(bundled(schema_path))
        for error in validator.iter_errors(document):
            place = "/".join(map(str, error.absolute_path))
            faults.append(f"{path.name}: '{place}': {error.message}")
        for what, variant in variants(document):
            count += 1
            if validator.is_valid(variant):
                faults.append(f"{path.name}: the schema does not mind {what}")

    for fault in faults:
        print(fault)
    print(f"{count} wrong variants were tried")
    return 1 if faults or count == 0 else 0


sys.exit(main())
