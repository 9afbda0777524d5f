"""Writes STEP files of building models, record by record, checked against the schema.

A record is given by class and attribute names. The schema puts the attributes into their slots, forms each
value as its declared type asks, and refuses what the class does not have or must not leave out.
"""

import hashlib
import itertools

GLOBAL_ID_DIGITS = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$"
LINE_LENGTH = 118


class Reference:
    """A record that was written: its number and its class."""

    def __init__(self, number, class_name):
        self.number = number
        self.class_name = class_name


class Value:
    """A value that carries its type, as slots of a select type need it."""

    def __init__(self, type_name, value):
        self.type_name = type_name
        self.value = value


class Text(str):
    """A text with its own way of writing characters outside ASCII: "X", "S", "X2", "X4" or a code page "PE"."""

    def __new__(cls, text, encoding):
        result = super().__new__(cls, text)
        result.encoding = encoding
        return result


def global_id(key):
    """A stable GlobalId for a name: the same in every file that holds the object."""
    number = int.from_bytes(hashlib.md5(key.encode("utf-8")).digest(), "big")
    digits = [GLOBAL_ID_DIGITS[(number >> shift) & 63] for shift in range(120, -1, -6)]
    return GLOBAL_ID_DIGITS[number >> 126] + "".join(digits)


def real_text(number):
    """The shortest spelling that reads back equal, with the point that STEP demands."""
    mantissa, _, exponent = repr(float(number)).upper().partition("E")
    if mantissa.endswith(".0"):
        mantissa = mantissa[:-1]
    if "." not in mantissa:
        mantissa += "."
    return mantissa + ("E" + exponent if exponent else "")


def is_plain(character):
    return " " <= character <= "~"


def escape_on_page(character, page):
    """A character of the code page that the text names at its beginning."""
    return "\\S\\" + chr(character.encode("iso8859_%d" % (ord(page) - ord("A") + 1))[0] - 128)


def escape_latin(character, encoding):
    """A character of Latin-1; some of them have no short form with `\\S\\`."""
    low = ord(character) - 128
    return "\\S\\" + chr(low) if encoding == "S" and low >= 32 else "\\X\\%02X" % ord(character)


def escape_run(run, encoding):
    """Any characters, several in one escape."""
    if encoding == "X4" or any(ord(character) > 0xFFFF for character in run):
        return "\\X4\\" + run.encode("utf-32-be").hex().upper() + "\\X0\\"
    return "\\X2\\" + run.encode("utf-16-be").hex().upper() + "\\X0\\"


def escaped(run, encoding):
    """A run of characters outside ASCII."""
    if encoding.startswith("P"):
        return "".join(escape_on_page(character, encoding[1]) for character in run)
    if encoding in ("X", "S") and all(ord(character) < 256 for character in run):
        return "".join(escape_latin(character, encoding) for character in run)
    return escape_run(run, encoding)


def string_text(text, encoding):
    """A text between its quotes, with other characters than ASCII written as `encoding` says."""
    encoding = getattr(text, "encoding", encoding)
    out = "\\" + encoding + "\\" if encoding.startswith("P") else ""
    for plain, run in itertools.groupby(text, is_plain):
        run = "".join(run)
        out += run.replace("\\", "\\\\").replace("'", "''") if plain else escaped(run, encoding)
    return "'" + out + "'"


class StepWriter:
    """Collects the records of one file.

    `schemas` are those of all files of the family: an attribute that another of them has, but not this one, is
    left out quietly, so that one description of an object serves all. An attribute that none has is an error.
    """

    def __init__(self, schema, schemas, schema_name, encoding):
        self.schema = schema
        self.schemas = schemas
        self.schema_name = schema_name
        self.encoding = encoding
        self.lines = []
        self.number = 0
        self.count = 0
        self.owner_history = None

    def has(self, name):
        return name in self.schema.entities or name in self.schema.types

    def section(self, title, *lines):
        """Starts a group of records with a comment, at the next full hundred."""
        self.number = (self.number // 100 + 1) * 100 - 1
        self.lines.append("")
        rule = "-" * max(0, LINE_LENGTH - len(title) - 11)
        self.lines.append("/* --- " + title + " " + rule + " */")
        for line in lines:
            self.note(line)

    def note(self, text):
        self.lines.append("/* " + text + " */")

    def add(self, class_name, **values):
        """Writes one record and returns its reference."""
        entity = self.schema.entities[class_name]
        if entity.abstract:
            raise ValueError(class_name + " is abstract")
        attributes = self.schema.attributes(class_name)
        self.__refuse_unknown(class_name, values, {attribute.name for attribute in attributes})
        arguments = []
        for attribute in attributes:
            try:
                arguments.append(self.__argument(values.get(attribute.name), attribute))
            except ValueError as error:
                raise ValueError("%s.%s: %s" % (class_name, attribute.name, error)) from None
        self.number += 1
        self.count += 1
        self.__write("#%d=%s(" % (self.number, class_name.upper()), arguments)
        return Reference(self.number, class_name)

    def rooted(self, class_name, key, **values):
        """Writes a record that has a GlobalId, made from `key`, and the file's owner history."""
        return self.add(class_name, GlobalId=global_id(key), OwnerHistory=self.owner_history, **values)

    def text(self, name, description, time_stamp, author, organization):
        encode = lambda text: string_text(text, self.encoding)
        header = [
            "ISO-10303-21;",
            "HEADER;",
            "FILE_DESCRIPTION((" + encode(description) + "),'2;1');",
            "FILE_NAME(%s,%s,(%s),(%s),%s,%s,%s);"
            % tuple(map(encode, (name, time_stamp, author, organization, "Qev samples 1.0", "Qev samples", ""))),
            "FILE_SCHEMA((" + encode(self.schema_name) + "));",
            "ENDSEC;",
            "",
            "DATA;",
        ]
        return "\n".join(header + self.lines + ["", "ENDSEC;", "END-ISO-10303-21;", ""])

    def __refuse_unknown(self, class_name, values, known):
        for name in values:
            if name not in known and not any(self.__knows(other, class_name, name) for other in self.schemas):
                raise ValueError("%s has no attribute %s" % (class_name, name))

    @staticmethod
    def __knows(schema, class_name, attribute):
        """Whether the class or one below it has the attribute: an older schema may lack the narrower class."""
        return any(
            own.name == attribute
            for entity in schema.entities.values()
            if class_name in schema.chain(entity.name)
            for own in schema.attributes(entity.name))

    def __argument(self, value, attribute):
        if attribute.derived:
            return "*"
        if value is None:
            if not attribute.optional:
                raise ValueError("is mandatory")
            return "$"
        return self.__form(value, attribute.type_text)

    def __form(self, value, type_text):
        schema = self.schema
        if type_text.split("[")[0] in ("list", "set", "bag", "array"):
            return self.__form_aggregate(value, type_text)
        if type_text in schema.types:
            return self.__form(value, schema.types[type_text])
        if type_text in schema.enumerations:
            if value not in schema.enumerations[type_text]:
                raise ValueError("%s is no item of %s" % (value, type_text))
            return "." + value + "."
        if type_text in schema.selects:
            return self.__form_select(value, type_text)
        if type_text in schema.entities:
            if not isinstance(value, Reference) or not schema.is_a(value.class_name, type_text):
                raise ValueError("%r is no %s" % (getattr(value, "class_name", value), type_text))
            return "#%d" % value.number
        return self.__form_simple(value, type_text)

    def __form_aggregate(self, value, type_text):
        if not isinstance(value, (list, tuple)):
            raise ValueError("%r is no aggregate" % (value,))
        bounds, element = type_text.split("] of ", 1)
        kind, bounds = bounds.split("[")
        low, high = bounds.split(":")
        if kind == "array":
            low, high = "0", str(int(high) - int(low) + 1)
        if len(value) < int(low) or (high != "?" and len(value) > int(high)):
            raise ValueError("has %d elements, not %s to %s" % (len(value), low, high))
        return "(" + ",".join(self.__form(item, element.removeprefix("unique ")) for item in value) + ")"

    def __form_select(self, value, type_text):
        members = self.schema.members(type_text)
        if isinstance(value, Reference):
            if members.isdisjoint(self.schema.chain(value.class_name)):
                raise ValueError("%s is no %s" % (value.class_name, type_text))
            return "#%d" % value.number
        if not isinstance(value, Value) or value.type_name not in members:
            raise ValueError("%r is no %s" % (getattr(value, "type_name", value), type_text))
        return value.type_name.upper() + "(" + self.__form(value.value, value.type_name) + ")"

    def __form_simple(self, value, type_text):
        if type_text.startswith("STRING") and isinstance(value, str):
            limit = type_text[7:].split(")")[0]
            if limit and len(value) > int(limit):
                raise ValueError("is longer than " + limit)
            return string_text(value, self.encoding)
        if type_text == "BOOLEAN" and isinstance(value, bool):
            return ".T." if value else ".F."
        if type_text == "LOGICAL" and value in (True, False, "UNKNOWN"):
            return ".U." if value == "UNKNOWN" else ".T." if value else ".F."
        if type_text == "INTEGER" and type(value) is int:
            return str(value)
        if type_text == "REAL" and type(value) in (int, float):
            return real_text(value)
        if type_text == "NUMBER" and type(value) in (int, float):
            return str(value) if isinstance(value, int) else real_text(value)
        if type_text == "BINARY" and isinstance(value, str):
            return '"' + value + '"'
        raise ValueError("%r is no %s" % (value, type_text))

    def __write(self, head, arguments):
        line = head
        for index, argument in enumerate(arguments):
            piece = argument + ("," if index + 1 < len(arguments) else ");")
            if len(line) + len(piece) > LINE_LENGTH and line.strip():
                self.lines.append(line)
                line = "    "
            line += piece
        self.lines.append(line)
