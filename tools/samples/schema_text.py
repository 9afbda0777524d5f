"""Reads the declarations of a schema from the notation of data/schemas."""

from pathlib import Path

SCHEMAS = Path(__file__).resolve().parents[2] / "data" / "schemas"


class Entity:
    def __init__(self, name, supertype, abstract):
        self.name = name
        self.supertype = supertype
        self.abstract = abstract
        self.own = []
        self.derived = set()


class Attribute:
    def __init__(self, name, type_text, optional, derived=False):
        self.name = name
        self.type_text = type_text
        self.optional = optional
        self.derived = derived


class Schema:
    """The types, enumerations, selects and entities of one schema."""

    def __init__(self, name):
        self.name = name
        self.types = {}
        self.enumerations = {}
        self.selects = {}
        self.entities = {}
        self.__slots = {}
        entity = None
        for line in (SCHEMAS / (name + ".schema")).read_text(encoding="utf-8").splitlines():
            words = line.split()
            if not words or words[0] in ("#", "schema"):
                continue
            if line.startswith("  "):
                self.__read_attribute(entity, words)
            elif words[0] == "type":
                self.types[words[1]] = " ".join(words[3:])
            elif words[0] == "enumeration":
                self.enumerations[words[1]] = words[3:]
            elif words[0] == "select":
                self.selects[words[1]] = words[3:]
            else:
                entity = self.__read_entity(words)

    def __read_entity(self, words):
        abstract = words[0] == "abstract"
        words = words[abstract:]
        entity = Entity(words[1], words[3] if len(words) > 3 else None, abstract)
        self.entities[entity.name] = entity
        return entity

    @staticmethod
    def __read_attribute(entity, words):
        if words[0] == "derived":
            entity.derived.add(words[1].split(".")[1])
        elif words[0] != "inverse":
            entity.own.append(Attribute(words[0], " ".join(words[2:]), words[1] == "?"))

    def chain(self, name):
        """The class and those above it, the root first."""
        result = []
        while name:
            result.insert(0, name)
            name = self.entities[name].supertype
        return result

    def is_a(self, name, base):
        return base in self.chain(name)

    def attributes(self, name):
        """The attributes of a class in the order of their slots."""
        if name not in self.__slots:
            chain = [self.entities[link] for link in self.chain(name)]
            derived = set().union(*(entity.derived for entity in chain))
            self.__slots[name] = [
                Attribute(a.name, a.type_text, a.optional, a.name in derived)
                for entity in chain for a in entity.own]
        return self.__slots[name]

    def members(self, select):
        """The members of a select, those of selects inside it included."""
        result = set()
        for member in self.selects[select]:
            result |= self.members(member) if member in self.selects else {member}
        return result
