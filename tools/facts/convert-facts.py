#!/usr/bin/env python3
"""Writes the compact tables below data/ from a folder of IFC fact tables.

    tools/facts/convert-facts.py FOLDER [--check]

FOLDER holds the tab-separated tables of the schemas (NAME.schema), of the property
sets (IFC4X3.psets) and of the differences between versions (version-diff.tsv).
The build does not run this program; its output is part of the repository.
With --check nothing is written, and the program fails when a table would change.

The notations are described in data/README.md.
"""

import argparse
import re
import sys
from pathlib import Path

REPOSITORY = Path(__file__).resolve().parents[2]
MODEL_SCHEMA = "IFC4X3_TC1"
SCHEMAS = ["IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_TC1", "IFC4X3_ADD2"]

# Types, enumerations, enumeration items, selects, select members, entities, abstract
# entities, attributes, optional attributes, derived and inverse attributes.
SCHEMA_COUNTS = {
    "IFC2X3": (117, 164, 1310, 46, 221, 653, 97, 1320, 599, 7, 115),
    "IFC4": (130, 207, 1632, 60, 270, 776, 123, 1491, 818, 8, 153),
    "IFC4X1": (130, 210, 1645, 60, 271, 801, 130, 1542, 838, 8, 158),
    "IFC4X2": (130, 217, 1744, 60, 271, 816, 129, 1554, 844, 8, 160),
    "IFC4X3_TC1": (131, 243, 2113, 61, 270, 872, 133, 1635, 896, 8, 164),
    "IFC4X3_ADD2": (132, 243, 2117, 61, 271, 876, 133, 1644, 899, 8, 165),
}
SET_COUNTS = {"sets": 760, "properties": 3988, "applicable": 1578, "enumerations": 347}

# Concrete classes of a version that can no longer be instantiated, with the class to use.
CONCRETE_REPLACEMENTS = {
    "IFC2X3": {
        "IfcBoundedSurface": "IfcRectangularTrimmedSurface",
        "IfcProductRepresentation": "IfcProductDefinitionShape",
        "IfcRelAssociates": "IfcRelAssociatesLibrary",
        "IfcRepresentation": "IfcShapeRepresentation",
        "IfcRepresentationContext": "IfcGeometricRepresentationContext",
    },
    "IFC4X2": {"IfcFacilityPart": "IfcFacilityPartCommon"},
}

# Attributes of vanished classes that go on under another name in the nearest class.
NEAREST_RENAMES = {
    "IfcClassificationItem": {"Title": "Name"},
    "IfcDraughtingCallout": {"Contents": "Elements"},
    "IfcElectricDistributionPoint": {"DistributionPointFunction": "PredefinedType"},
    "IfcOrientationExpression": {"LateralAxisDirection": "RefDirection", "VerticalAxisDirection": "Axis"},
    "IfcRigidOperation": {
        "FirstCoordinate": "Eastings", "SecondCoordinate": "Northings", "Height": "OrthogonalHeight"
    },
    "IfcWindowStyle": {"OperationType": "PartitioningType"},
}

AGGREGATES = {"L": "list", "S": "set", "B": "bag", "A": "array"}
TEMPLATE_TYPES = {
    "PSET_TYPEDRIVENONLY": 0,
    "PSET_TYPEDRIVENOVERRIDE": 1,
    "PSET_OCCURRENCEDRIVEN": 2,
    "PSET_PERFORMANCEDRIVEN": 3,
    "QTO_TYPEDRIVENONLY": 4,
    "QTO_TYPEDRIVENOVERRIDE": 5,
    "QTO_OCCURRENCEDRIVEN": 6,
    "NOTDEFINED": 7,
    "PSET_MATERIALDRIVEN": 7,
    "PSET_PROFILEDRIVEN": 7,
}


class Failure(Exception):
    """A fact that contradicts another one, or that this program cannot express."""


def require(condition, message):
    if not condition:
        raise Failure(message)


def facts(path):
    """The fields of every line that is neither empty nor a comment, with its number."""
    for number, line in enumerate(path.read_text(encoding="utf-8").split("\n"), 1):
        if line and not line.startswith("#"):
            yield number, line.split("\t")


class Entity:
    def __init__(self, name, supertype, abstract):
        self.name = name
        self.supertype = supertype
        self.abstract = abstract
        self.numbers = None
        self.attributes = []  # (name, type expression, optional)
        self.derived = []  # (entity, attribute)
        self.inverse = []  # (name, cardinality, entity, attribute)


class Schema:
    def __init__(self, path):
        self.name = None
        self.types = {}
        self.enumerations = {}
        self.selects = {}
        self.entities = {}
        entity = None
        for number, fields in facts(path):
            kind, values = fields[0], fields[1:]
            if kind == "schema":
                self.name = values[0]
            elif kind == "T":
                self.types[values[0]] = values[1]
            elif kind == "N":
                self.enumerations[values[0]] = values[1:]
            elif kind == "S":
                self.selects[values[0]] = values[1:]
            elif kind in "EA":
                entity = Entity(values[0], None if values[1] == "-" else values[1], kind == "A")
                if len(values) == 4:
                    entity.numbers = (int(values[2]), int(values[3]))
                self.entities[entity.name] = entity
            elif kind in "mo":
                entity.attributes.append((values[0], values[1], kind == "o"))
            elif kind == "d":
                entity.derived.append(tuple(values))
            elif kind == "i":
                entity.inverse.append(tuple(values))
            else:
                raise Failure(f"{path}:{number}: unknown kind of fact {kind!r}")

    def counts(self):
        entities = self.entities.values()
        return (
            len(self.types),
            len(self.enumerations),
            sum(map(len, self.enumerations.values())),
            len(self.selects),
            sum(map(len, self.selects.values())),
            len(self.entities),
            sum(e.abstract for e in entities),
            sum(len(e.attributes) for e in entities),
            sum(a[2] for e in entities for a in e.attributes),
            sum(len(e.derived) for e in entities),
            sum(len(e.inverse) for e in entities),
        )

    def ancestors(self, name):
        """The class itself and its supertypes, nearest first."""
        while name:
            yield name
            name = self.entities[name].supertype

    def slots(self, name):
        """The attributes of a class in the order of its parameters."""
        chain = list(self.ancestors(name))
        return [attribute for ancestor in reversed(chain) for attribute in self.entities[ancestor].attributes]


def type_text(expression):
    """The notation of a type expression, for example `list[1:?] of unique IfcLabel`."""
    aggregate = re.fullmatch(r"([LSBA])(U?)\[(-?\d+):(-?\d+|\?)\]\((.*)\)", expression)
    if aggregate:
        kind, unique, low, high, element = aggregate.groups()
        return f"{AGGREGATES[kind]}[{low}:{high}] of {'unique ' if unique else ''}{type_text(element)}"
    width = re.fullmatch(r"((?:STRING|BINARY)\(\d+\))(F?)", expression)
    if width:
        return width[1] + (" fixed" if width[2] else "")
    require(re.fullmatch(r"\w+", expression), f"unknown type expression {expression!r}")
    return expression


def cardinality_text(cardinality):
    """`one`, or the aggregate of referring objects, for example `set[0:?]`."""
    if cardinality == "1":
        return "one"
    return AGGREGATES[cardinality[0]] + cardinality[1:]


def schema_text(schema):
    lines = [f"# Declarations of {schema.name}; notation: data/README.md", f"schema {schema.name}", ""]
    lines += [f"type {name} = {type_text(expression)}" for name, expression in schema.types.items()]
    lines.append("")
    lines += [f"enumeration {name} = {' '.join(items)}" for name, items in schema.enumerations.items()]
    lines.append("")
    lines += [f"select {name} = {' '.join(members)}" for name, members in schema.selects.items()]
    for entity in schema.entities.values():
        head = f"entity {entity.name}" + (f" : {entity.supertype}" if entity.supertype else "")
        lines += ["", ("abstract " if entity.abstract else "") + head]
        for name, expression, optional in entity.attributes:
            lines.append(f"  {name} {'?' if optional else ':'} {type_text(expression)}")
        for owner, name in entity.derived:
            lines.append(f"  derived {owner}.{name}")
        for name, cardinality, referrer, attribute in entity.inverse:
            lines.append(f"  inverse {name} = {cardinality_text(cardinality)} {referrer}.{attribute}")
    return "\n".join(lines) + "\n"


def check_schema(schema, key):
    require(schema.name == key, f"{key}: the table names {schema.name}")
    require(schema.counts() == SCHEMA_COUNTS[key], f"{key}: counts {schema.counts()}, {SCHEMA_COUNTS[key]} expected")
    if key == MODEL_SCHEMA:
        check_numbers(schema)


def check_numbers(schema):
    """The numbers in the table have to be the positions of a depth-first walk."""
    children = {}
    for entity in schema.entities.values():
        children.setdefault(entity.supertype, []).append(entity.name)

    def walk(name, number):
        last = number
        for child in sorted(children.get(name, [])):
            last = walk(child, last + 1)
        if name:
            require(schema.entities[name].numbers == (number, last), f"{name}: numbered {number}..{last}")
        return last

    require(walk(None, 0) == len(schema.entities), "not every entity has a number")


def sets_text(path):
    head = ["# Property and quantity sets of IFC4X3; notation: data/README.md"]
    enumerations = {}
    body = []
    counts = dict.fromkeys(SET_COUNTS, 0)
    chapter = None
    for number, fields in facts(path):
        kind, values = fields[0], fields[1:]
        require(not any(re.search(r"[\s#]", value) for value in values), f"{path}:{number}: blank in a name")
        if kind == "psets":
            head += [f"sets {values[0]}", ""]
        elif kind == "P":
            name, template, template_name, set_chapter = values
            require(TEMPLATE_TYPES[template_name] == int(template), f"{path}:{number}: template type {template}")
            if set_chapter != chapter:
                chapter = set_chapter
                body += ["", f"chapter {chapter}"]
            body += ["", f"set {name} {template_name}"]
            counts["sets"] += 1
        elif kind == "C":
            body.append(f"  for {'/'.join(values)}")
            counts["applicable"] += 1
        elif kind == "p":
            name, value_kind, details = values[0], values[1], values[2:]
            if value_kind == "enum":
                enumeration, value_type, items = details[0], details[1], details[2:]
                known = enumerations.setdefault(enumeration, (value_type, items))
                require(known == (value_type, items), f"{path}:{number}: {enumeration} has two value lists")
                details = [enumeration]
            body.append(f"  {name} : {' '.join([value_kind] + details)}")
            counts["properties"] += 1
        else:
            raise Failure(f"{path}:{number}: unknown kind of fact {kind!r}")
    counts["enumerations"] = len(enumerations)
    require(counts == SET_COUNTS, f"{path}: counts {counts}, {SET_COUNTS} expected")
    declarations = [f"enumeration {name} {value_type} = {' '.join(items)}"
                    for name, (value_type, items) in enumerations.items()]
    return "\n".join(head + declarations + body) + "\n"


class Mapping:
    """How the classes of one version stand to those of the model schema."""

    def __init__(self, old, new, rows):
        self.old = old
        self.new = new
        self.nearest = {}  # old class: (new class or None, grade)
        self.renames = {}  # old class: {old attribute: new attribute}
        self.expected_maps = {}
        for change, subject, *columns in rows:
            if change == "entity-":
                self.nearest[subject] = (None if columns[0] == "-" else columns[0], columns[1])
            elif change == "rename":
                self.renames.setdefault(subject, {})[columns[0]] = columns[1]
            elif change == "map":
                self.expected_maps[subject] = (subject, *columns)
            elif change == "nearmap":
                self.expected_maps[subject] = tuple(columns)
        for name, renames in NEAREST_RENAMES.items():
            if name in old.entities:
                self.renames.setdefault(name, {}).update(renames)
        for name, replacement in CONCRETE_REPLACEMENTS.get(old.name, {}).items():
            self.nearest[name] = (replacement, "convert")

    def slot_map(self, name, target):
        """For each slot of the new class the slot of the old one, by attribute name."""
        renames = {}
        for ancestor in self.old.ancestors(name):
            for old_name, new_name in self.renames.get(ancestor, {}).items():
                renames.setdefault(old_name, new_name)
        old_names = [attribute[0] for attribute in self.old.slots(name)]
        renamed = [renames.get(old_name, old_name) for old_name in old_names]
        slots = [renamed.index(a[0]) if a[0] in renamed else None for a in self.new.slots(target)]
        dropped = [old_name for position, old_name in enumerate(old_names) if position not in slots]
        return slots, len(old_names), dropped

    def check(self):
        problems = []
        for name, entity in self.old.entities.items():
            expected = self.expected_maps.get(name)
            nearest = self.nearest.get(name, (name, "same"))[0]
            require(name in self.new.entities or name in self.nearest, f"{name} has no counterpart")
            target = name if name in self.new.entities else nearest
            if target is None:
                require(expected is None, f"{name}: a slot map without a class")
                continue
            slots, old_count, dropped = self.slot_map(name, target)
            identity = slots == list(range(old_count))
            if expected is None:
                if not (identity and target == name):
                    problems.append(f"{name} -> {target}: no row, but {slots} drops {dropped}")
                continue
            row = (target, str(old_count), str(len(slots)),
                   " ".join("-" if slot is None else str(slot) for slot in slots) or "-",
                   " ".join(dropped) or "-")
            if row != expected:
                problems.append(f"{name}: {row}, {expected} expected")
        require(not problems, f"{self.old.name}: " + "\n  ".join(problems))

    def text(self):
        lines = [f"# {self.old.name} in terms of {self.new.name}; notation: data/README.md",
                 f"mapping {self.old.name} {self.new.name}", ""]
        for name, (nearest, grade) in self.nearest.items():
            lines.append(f"class {name} -> {nearest} {grade}" if nearest else f"class {name} -> none")
        lines.append("")
        for name, renames in self.renames.items():
            lines += [f"attribute {name}.{old_name} -> {new_name}" for old_name, new_name in renames.items()]
        return "\n".join(lines) + "\n"


def mappings(folder, schemas):
    rows = {name: [] for name in SCHEMAS if name != MODEL_SCHEMA}
    for _, (old, new, *row) in facts(folder / "version-diff.tsv"):
        require(new == MODEL_SCHEMA, f"differences to {new}")
        rows[old].append(row)
    for old, changes in rows.items():
        mapping = Mapping(schemas[old], schemas[MODEL_SCHEMA], changes)
        mapping.check()
        yield old, mapping


def tables(folder):
    """Every table to write: its path below data/ and its text."""
    schemas = {}
    for key in SCHEMAS:
        schemas[key] = Schema(folder / f"{key}.schema")
        check_schema(schemas[key], key)
        yield f"schemas/{key}.schema", schema_text(schemas[key])
    yield "property-sets/IFC4X3.sets", sets_text(folder / "IFC4X3.psets")
    for old, mapping in mappings(folder, schemas):
        yield f"schemas/{old}.to-IFC4X3", mapping.text()


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("folder", type=Path)
    parser.add_argument("--check", action="store_true", help="write nothing, fail when a table would change")
    arguments = parser.parse_args()
    changed = []
    try:
        for name, text in list(tables(arguments.folder)):
            path = REPOSITORY / "data" / name
            if path.exists() and path.read_text(encoding="utf-8") == text:
                continue
            changed.append(name)
            if not arguments.check:
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8", newline="\n")
    except Failure as failure:
        sys.exit(f"convert-facts: {failure}")
    for name in changed:
        print(name)
    return 1 if arguments.check and changed else 0


if __name__ == "__main__":
    sys.exit(main())
