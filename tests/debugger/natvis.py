"""Run by gdb: whether each type and member that a natvis file names is there."""

import os
import re
import xml.etree.ElementTree

import gdb

NAMESPACE = "{http://schemas.microsoft.com/vstudio/debugger/natvis/2010}"

# For a wildcard any instantiation will do.
INSTANCES = {
    "ZXArray<*>": "ZXArray<int>",
    "ZArray<*>": "ZArray<float>",
    "ZMatrix<*>": "ZMatrix<double>",
    "ZList<*>": "ZList<int>",
    "ZCoord<*>": "ZCoord<short>",
    "ZVector<*>": "ZVector<short>",
    "ZTPoint<*>": "ZTPoint<double>",
}
NO_MEMBERS = {"sizeof", "this"}
CHAIN = re.compile(r"(?<![\w$])[A-Za-z_]\w*(?:(?:\.|->)[A-Za-z_]\w*)*")


def members_of(data_type):
    """Name and type of each member, with those of the bases."""
    found = {}
    for field in data_type.strip_typedefs().fields():
        if field.is_base_class:
            found.update(members_of(field.type))
        else:
            found[field.name] = field.type
    return found


def resolve(chain, data_type):
    """The type of a.b->c in an object."""
    for name in re.split(r"\.|->", chain):
        data_type = data_type.strip_typedefs()
        if data_type.code == gdb.TYPE_CODE_PTR:
            data_type = data_type.target().strip_typedefs()
        members = members_of(data_type)
        if name not in members:
            raise LookupError(f"{data_type} has no {name} ({chain})")
        data_type = members[name]
    return data_type


def check(expression, data_type):
    """How many members it names."""
    expression = re.sub(r",\w+$", "", expression.strip())  # how to format it
    chains = [chain for chain in CHAIN.findall(expression) if chain not in NO_MEMBERS]
    for chain in chains:
        resolve(chain, data_type)
    return len(chains)


def expressions(element):
    """All in one of the elements of a type."""
    if "Condition" in element.attrib:
        yield element.get("Condition")
    tag = element.tag.removeprefix(NAMESPACE)
    if tag == "DisplayString":
        yield from re.findall(r"\{([^}]*)\}", element.text)
    elif tag in ("StringView", "Size", "ValuePointer", "HeadPointer"):
        yield element.text
    elif tag == "LinkedListItems":
        for child in element:
            if child.tag.removeprefix(NAMESPACE) not in ("NextPointer", "ValueNode"):
                yield from expressions(child)
    elif tag in ("Expand", "ArrayItems"):
        for child in element:
            yield from expressions(child)
    elif tag not in ("AlternativeType", "Direction", "Rank"):
        raise LookupError(f"{tag} is not known to this test")


def checked_as(element, data_type):
    count = 0
    for child in element:
        count += sum(check(expression, data_type) for expression in expressions(child))
    for items in element.iter(NAMESPACE + "LinkedListItems"):
        node = resolve(items.find(NAMESPACE + "HeadPointer").text, data_type)
        for tag in ("NextPointer", "ValueNode"):
            count += check(items.find(NAMESPACE + tag).text, node.target())
    return count


def main():
    for command in ("set confirm off", "set print frame-info short-location", "start"):
        gdb.execute(command, to_string=True)  # once it runs, the library's types are there
    root = xml.etree.ElementTree.parse(os.environ["ZARNEX_NATVIS"]).getroot()
    wrong, types, members = 0, 0, 0
    for element in root.findall(NAMESPACE + "Type"):
        alternatives = element.findall(NAMESPACE + "AlternativeType")
        for name in [kind.get("Name") for kind in (element, *alternatives)]:
            types += 1
            try:
                members += checked_as(element, gdb.lookup_type(INSTANCES.get(name, name)))
            except (LookupError, gdb.error) as fault:
                wrong += 1
                print(f"{name}: {fault}")
    print(f"{types} types, {members} places of members, {wrong} types wrong")
    gdb.execute(f"quit {1 if wrong or types == 0 or members == 0 else 0}")


try:
    main()
except Exception as fault:  # gdb would end with 0
    print(f"{type(fault).__name__}: {fault}")
    gdb.execute("quit 1")
