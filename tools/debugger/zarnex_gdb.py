"""How gdb shows the objects of the library.

A printer is a class for a family of look-alikes; `families` at the end says which types it
shows. Printers call nothing in the program, only read its memory, so they work on core files
too. What they read may be garbage: the object may not be constructed yet, be destroyed or
overwritten. They then say so in angle brackets and stop.

Loaded by libzarnex-foundation.so.*-gdb.py, or by hand: source zarnex_gdb.py
"""

import gdb
import gdb.printing
import gdb.types

PAGE = 4096
LARGEST_COUNT = 2**31 - 1


class Broken(Exception):
    """The object cannot be what its type says; the text tells why."""


def most_elements():
    """How many elements gdb is set to show: `set print elements`."""
    limit = gdb.parameter("print elements")
    return LARGEST_COUNT if limit is None else limit


def name_of(value):
    return str(gdb.types.get_basic_type(value.type).unqualified())


def read(address, count):
    try:
        return bytes(gdb.selected_inferior().read_memory(address, count))
    except gdb.MemoryError:
        raise Broken(f"unreadable at {address:#x}") from None


def number(value):
    """The shortest text that reads back as the same number: 0.1, not 0.10000000000000001."""
    value_type = value.type.strip_typedefs()
    if value_type.code == gdb.TYPE_CODE_FLT:
        return repr(float(value)).removesuffix(".0")
    return str(int(value))


class Printer:
    """What all share: text() makes the summary, and may fail."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        try:
            return self.text()
        except (Broken, gdb.error) as fault:
            return f"<{fault}>"


# ---- Text


def units_before_end(address, width, most):
    """The length of the text, None if it has no end within `most` units. Reads a page at a time,
    for the next one may not be there."""
    zero = bytes(width)
    done = 0
    while done < most:
        start = address + done * width
        count = min(most - done, max(1, (PAGE - start % PAGE) // width))
        data = read(start, count * width)
        for i in range(count):
            if data[i * width : (i + 1) * width] == zero:
                return done + i
        done += count
    return None


class Text(Printer):
    """A text in a ZXArray, which ends at its first zero, wherever the array ends."""

    def storage(self):
        """The text and how many units it may have with its end."""
        array = self.value["array_"]
        room, length = int(array["allocLength_"]), int(array["length_"])
        if not 0 <= length <= room:
            raise Broken(f"corrupt: length {length}, room {room}")
        return array["data_"], room

    def text(self):
        pointer, room = self.storage()
        if int(pointer) == 0:
            raise Broken("no storage")
        shown = most_elements()
        looked_at = min(room, shown + 1)
        length = units_before_end(int(pointer), pointer.type.target().sizeof, looked_at)
        if length is None:
            if room <= shown:
                raise Broken(f"corrupt: no end within {room} characters")
            length = looked_at  # gdb cuts it off and adds dots
        return pointer.lazy_string(length=length)

    def display_hint(self):
        # Asked for first. With the hint, gdb would put what is wrong in quotes.
        return None if isinstance(self.to_string(), str) else "string"


class GenericText(Text):
    """The form that it was made from, or both are there and mean the same."""

    def storage(self):
        wide = self.value["wide_"]
        return (wide if int(wide) != 0 else self.value["bytes_"]), LARGEST_COUNT


# ---- Elements one behind the other


class Elements(Printer):
    def run(self):
        """The first element, how many there are, and what to say of them."""
        raise NotImplementedError

    def checked(self, pointer, length, room):
        if not 0 <= length <= room:
            raise Broken(f"corrupt: length {length}, room {room}")
        if length > 0:
            if int(pointer) == 0:
                raise Broken("no storage")
            read(int(pointer), 1)
        return pointer, length, f"of length {length}, room {room}"

    def to_string(self):
        return f"{name_of(self.value)} {super().to_string()}"

    def text(self):
        return self.run()[2]

    def children(self):
        try:
            pointer, length, _ = self.run()
        except (Broken, gdb.error):
            return  # stands in the summary
        for i in range(length):
            element = (pointer + i).dereference()
            try:
                element.fetch_lazy()
            except gdb.error as fault:
                yield f"[{i}]", f"<{fault}>"
                return
            yield f"[{i}]", element

    def display_hint(self):
        return "array"


class Array(Elements):
    def run(self):
        v = self.value
        return self.checked(v["data_"], int(v["length_"]), int(v["allocLength_"]))


class Group(Elements):
    def run(self):
        v = self.value
        return self.checked(v["items_"], int(v["count_"]), int(v["capacity_"]))


class Block(Elements):
    """ZArray knows no length: all that its block has room for."""

    def run(self):
        v = self.value
        element = gdb.types.get_basic_type(v.type).template_argument(0)
        room = int(v["blockBytes_"]) // element.sizeof
        pointer, _, _ = self.checked(v["block_"], room, LARGEST_COUNT)
        cache = "frozen" if int(v["cache_"]) == 0 else f"of {int(v['cacheLength_'])}"
        return pointer.cast(element.pointer()), room, f"of room {room}, cache {cache}"


class Matrix(Elements):
    """An element is a row."""

    def run(self):
        v = self.value
        rows, columns, pointer = int(v["rows_"]), int(v["cols_"]), v["data_"]
        if rows < 0 or columns < 0 or rows * columns > LARGEST_COUNT:
            raise Broken(f"corrupt: {rows} x {columns}")
        if rows * columns == 0:
            return pointer, 0, f"of {rows} x {columns}"
        row = pointer.type.target().array(columns - 1)
        pointer, _, _ = self.checked(pointer.cast(row.pointer()), rows, rows)
        return pointer, rows, f"of {rows} x {columns}"


# ---- Elements in a ring


class Ring(Printer):
    """The nodes of a list, each leading to the next and the last one to the first."""

    following = "next"

    def nodes(self, most):
        """At most so many; broken if there are others than the list counts."""
        head, says = self.value["head_"], int(self.value["count_"])
        node = head
        places = {}
        closed = int(head) == 0
        while not closed and len(places) < most:
            address, place = int(node), len(places)
            if address == 0:
                raise Broken(f"broken: null after element {place - 1}")
            if address in places:
                raise Broken(f"broken: element {places[address]} again after {place - 1}")
            try:
                following = node[self.following]
                following.fetch_lazy()
            except gdb.MemoryError:
                raise Broken(f"broken: element {place} unreadable at {address:#x}") from None
            places[address] = place
            yield node
            node = following
            closed = int(node) == int(head)
        if len(places) > says or (closed and len(places) < says):
            raise Broken(f"broken: {len(places)} elements, but a count of {says}")

    def text(self):
        for _ in self.nodes(most_elements()):
            pass
        return f"of length {int(self.value['count_'])}"

    def to_string(self):
        return f"{name_of(self.value)} {super().to_string()}"

    def element(self, node):
        return node["data"]

    def children(self):
        try:
            for i, node in enumerate(self.nodes(LARGEST_COUNT)):
                yield f"[{i}]", self.element(node)
        except (Broken, gdb.error):
            return  # stands in the summary

    def display_hint(self):
        return "array"


class IntrusiveRing(Ring):
    """Nodes of classes that the host derives."""

    following = "next_"

    def element(self, node):
        try:
            return node.cast(node.dynamic_type).dereference()
        except gdb.error:  # overwritten
            return node.dereference()


# ---- Values


class Coordinates(Printer):
    def text(self):
        return f"({number(self.value['x'])}, {number(self.value['y'])})"


class Rectangle(Printer):
    def text(self):
        left, top, right, bottom = (
            number(self.value[side]) for side in ("left", "top", "right", "bottom")
        )
        return f"left {left}, top {top}, right {right}, bottom {bottom}"


class Quantity(Printer):
    units = {
        "ZMillimeter": "mm",
        "ZCentimeter": "cm",
        "ZInch": "in",
        "ZEmbPoint": "pt",
        "ZSpi": "spi",
        "ZMillimeterPerSec": "mm/s",
        "ZCentimeterPerSec": "cm/s",
        "ZSquareCentimeter": "per sq cm",
        "ZNumber": "",
        "ZRealNumber": "",
        "ZHalfNumber": "",
        "ZPercent": "%",
        "ZDegree": "deg",
    }
    always_valid = {"ZNumber", "ZRealNumber", "ZHalfNumber", "ZPercent", "ZDegree"}

    def text(self):
        name = name_of(self.value)
        text = f"{number(self.value['value_'])} {self.units[name]}".rstrip()
        if name not in self.always_valid and int(self.value["valid_"]) == 0:
            text += ", invalid"
        return text


class Guid(Printer):
    def text(self):
        v = self.value
        rest = "".join(f"{int(v['Data4'][i]):02x}" for i in range(8))
        return (
            f"{int(v['Data1']):08x}-{int(v['Data2']):04x}-{int(v['Data3']):04x}"
            f"-{rest[:4]}-{rest[4:]}"
        )


class ShapeId(Printer):
    def text(self):
        text = Guid(self.value["guid_"]).text()
        return text if int(self.value["valid_"]) != 0 else f"{text}, invalid"


class BigNumber(Printer):
    """Decimal while that is easily read, then hexadecimal, of which gdb's limit cuts the rest."""

    decimal_limbs = 2

    def text(self):
        size, room = int(self.value["size_"]), int(self.value["room_"])
        limbs = int(self.value["limbs_"])
        if not 0 <= size <= room:
            raise Broken(f"corrupt: size {size}, room {room}")
        if size > 0 and limbs == 0:
            raise Broken("no storage")
        shown = min(size, most_elements() // 16 + 1)
        first = size - shown
        value = int.from_bytes(read(limbs + 8 * first, 8 * shown), "little") if size > 0 else 0
        if size <= self.decimal_limbs:
            return str(value)
        bits = 64 * first + value.bit_length()
        return f"{value:#x}{'...' if first > 0 else ''} ({bits} bits)"


families = (
    (Text, ("ZString", "ZMultiByteString", "ZWideString")),
    (GenericText, ("ZGenericString",)),
    (Array, ("ZXArray",)),
    (Block, ("ZArray",)),
    (Group, ("ZGroup",)),
    (
        Matrix,
        (
            "ZMatrix",
            "Z2DMatrix",
            "Z2DTrans",
            "Z2DRotate",
            "Z2DXScale",
            "Z2DYScale",
            "Z2DXShear",
            "Z2DYShear",
        ),
    ),
    (Ring, ("ZList", "ZSortList")),
    (IntrusiveRing, ("DLList", "Stack")),
    (
        Coordinates,
        (
            "DPoint",
            "DVector",
            "IPoint",
            "IVector",
            "ZCoord",
            "ZVector",
            "ZTPoint",
            "GPoint",
            "DBLPOINT",
            "tagPOINT",
        ),
    ),
    (Rectangle, ("DRECT",)),
    (Quantity, tuple(Quantity.units)),
    (Guid, ("_GUID",)),
    (ShapeId, ("ZGUIDWrapper",)),
    (BigNumber, ("SigUInt",)),
)


def register(objfile=None):
    """For what is seen while `objfile` is loaded, or always."""
    collection = gdb.printing.RegexpCollectionPrettyPrinter("zarnex")
    for printer, names in families:
        for name in names:
            collection.add_printer(name, f"^{name}(<.*>)?$", printer)
    gdb.printing.register_pretty_printer(objfile, collection, replace=True)


if __name__ == "__main__":
    register()
