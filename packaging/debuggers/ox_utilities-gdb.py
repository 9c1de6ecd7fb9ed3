"""GDB printers for the objects of ox_utilities.

Installed where GDB loads it together with the library; otherwise `source ox_utilities-gdb.py`.
The library describes its classes to debuggers in every build type; where it was stripped of that,
objects whose layout is hidden say so. Nothing is called in the program, so objects print in the
middle of an operation and in core dumps.
"""

import gdb
import gdb.printing

HIDDEN = "hidden: the library was stripped of its debug information"


def pointer_within(value):
    """The first pointer of a smart pointer of any standard library; None when there is none."""
    kind = value.type.strip_typedefs()
    if kind.code == gdb.TYPE_CODE_PTR:
        return value
    if kind.code != gdb.TYPE_CODE_STRUCT:
        return None
    for field in kind.fields():
        if hasattr(field, "bitpos"):  # static members have none
            found = pointer_within(value[field])
            if found is not None:
                return found
    return None


def record_of(value):
    """What a pointer or smart pointer points to; None when it is null or its type is hidden."""
    pointer = pointer_within(value)
    if pointer is None or int(pointer) == 0:
        return None
    target = pointer.type.strip_typedefs().target().unqualified()
    try:
        whole = gdb.lookup_type(target.name)
        return pointer.cast(whole.pointer()).dereference() if whole.fields() else None
    except (gdb.error, TypeError):
        return None


def state_of(value, names):
    """The member with one of these names."""
    fields = [field.name for field in value.type.strip_typedefs().fields()]
    return next(value[name] for name in names if name in fields)


def number(value):
    return "%.9g" % float(value)


def coordinates(vector, names):
    return "(" + ", ".join(number(vector[name]) for name in names) + ")"


def point(vector):
    return coordinates(vector, "xyz")


def list_size(items):
    return max(int(items["count"]), 0)


def counted(count, thing):
    plural = thing[:-2] + "ices" if thing.endswith("ex") else thing + "s"
    return "%d %s" % (count, thing if count == 1 else plural)


class ListPrinter:
    def __init__(self, value):
        self.value = value

    def is_sound(self):
        count, capacity = int(self.value["count"]), int(self.value["capacity"])
        return count <= capacity and (count <= 0 or int(self.value["data"]) != 0)

    def to_string(self):
        if not self.is_sound():
            return "list with an impossible count of %d" % int(self.value["count"])
        return "list of %d" % list_size(self.value)

    def children(self):
        for index in range(list_size(self.value) if self.is_sound() else 0):
            yield "[%d]" % index, self.value["data"][index]

    def display_hint(self):
        return "array"


class VectorPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        names = [f.name for f in self.value.type.strip_typedefs().fields() if f.name in "xyz"]
        return coordinates(self.value, names)


class PolarPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        parts = ("radius", "latitude", "longitude")
        return ", ".join("%s %s" % (part, number(self.value[part])) for part in parts)


class BoxPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        if float(self.value["size"]["x"]) < 0:
            return "empty box"
        origin, size = self.value["origin"], self.value["size"]
        end = ", ".join(number(float(origin[axis]) + float(size[axis])) for axis in "xyz")
        return "box from %s to (%s)" % (point(origin), end)


class ColorPrinter:
    def __init__(self, value):
        self.value = value

    def to_string(self):
        return "rgba " + coordinates(self.value, "rgba")


class MatrixPrinter:
    """Stored column by column, shown row by row."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        rows = []
        for row in range(4):
            rows.append(" ".join(number(self.value["m"][row + 4 * column]) for column in range(4)))
        return "[" + "; ".join(rows) + "]"


class HashPrinter:
    """The entries by rising key."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return "map of %d" % int(self.value["count"])

    def children(self):
        above = []
        node = self.value["root"]
        while above or int(node) != 0:
            while int(node) != 0:
                above.append(node)
                node = node["left"]
            node = above.pop()
            yield "key", node["key"]
            yield "value", node["value"]
            node = node["right"]

    def display_hint(self):
        return "map"


class HiddenPrinter:
    def __init__(self, name):
        self.name = name

    def to_string(self):
        return self.name + " " + HIDDEN


class RecordPrinter:
    """A class that keeps a record of its own behind a pointer."""

    members = ("state",)

    def __init__(self, value):
        pointer = state_of(value, self.members)
        self.moved_from = int(pointer_within(pointer)) == 0
        self.record = record_of(pointer)

    def to_string(self):
        if self.record is not None:
            return self.summary(self.record)
        return self.name + (": moved from" if self.moved_from else " " + HIDDEN)

    def children(self):
        if self.record is not None:
            for name in self.shown:
                yield name, self.record[name]


def contours_text(sizes):
    """Signed sizes as a solid stores them: a hole has a negative one."""
    values = [int(sizes["data"][index]) for index in range(list_size(sizes))]
    holes = sum(1 for size in values if size < 0)
    return "%s, %s" % (counted(len(values) - holes, "face"), counted(holes, "hole"))


class PolygonPrinter(RecordPrinter):
    name = "polygon"
    members = ("data", "state")
    shown = ("point", "normal", "contour_sizes", "contour_orientations", "contour_vertices",
             "pending_sizes", "pending_vertices")

    def summary(self, record):
        text = "polygon of %s, %s" % (counted(list_size(record["contour_sizes"]), "contour"),
                                      counted(list_size(record["contour_vertices"]), "vertex"))
        pending = list_size(record["pending_sizes"])
        return text + (", %s to merge" % counted(pending, "contour") if pending else "")


class SolidPrinter(RecordPrinter):
    """Its primary storage."""

    name = "solid"
    shown = ("vertices", "contours", "contour_sizes")

    def __init__(self, value):
        super().__init__(value)
        if self.record is not None:
            self.record = self.record["storage"]

    def summary(self, storage):
        return "solid of %s, %s" % (contours_text(storage["contour_sizes"]),
                                    counted(list_size(storage["vertices"]), "vertex"))


class TablePrinter(RecordPrinter):
    name = "table"
    shown = ("column_separator", "float_separator", "columns")

    def summary(self, record):
        return "table of " + counted(vector_size(record["columns"]), "column")


class CombinationPrinter(RecordPrinter):
    name = "combination"
    shown = ("tolerance", "operands", "known", "result", "problems")

    def summary(self, record):
        operands = counted(vector_size(record["operands"]), "operand")
        answer = str(record["known"]).split("::")[-1]
        if answer == "result":
            faces = contours_text(record["result"]["contour_sizes"])
            return "combination of %s, evaluated: %s" % (operands, faces)
        if answer == "problems":
            return "combination of %s, refused: %s" % (
                operands, counted(vector_size(record["problems"]), "problem"))
        return "combination of %s, not evaluated" % operands


def vector_size(vector):
    """Of a std::vector of libstdc++ or libc++."""
    names = [field.name for field in vector.type.strip_typedefs().fields()]
    if "__begin_" in names:
        return int(vector["__end_"] - vector["__begin_"])
    return int(vector["_M_impl"]["_M_finish"] - vector["_M_impl"]["_M_start"])


class TriangleSetPrinter:
    name = "triangle set"

    def __init__(self, value):
        self.value = value
        self.vertex_count = int(value["nb_vertices"])
        self.triangle_count = int(value["nb_triangles"])

    def to_string(self):
        return "%s of %s" % (counted(self.triangle_count, "triangle"),
                             counted(self.vertex_count, "vertex"))

    def children(self):
        yield from self.items("vertices", self.vertex_count)
        yield from self.items("triangles", 3 * self.triangle_count)

    def items(self, name, count):
        start = pointer_within(self.value[name])
        for index in range(count if start is not None and int(start) != 0 else 0):
            yield "%s[%d]" % (name, index), (start + index).dereference()


def printers():
    collection = gdb.printing.RegexpCollectionPrettyPrinter("ox_utilities")
    for name, expression, printer in (
            ("list", "ox_list<.*>", ListPrinter),
            ("hash", "ox_hash<.*>", HashPrinter),
            ("vector", "ox_[23]dvector", VectorPrinter),
            ("polar", "ox_polar", PolarPrinter),
            ("box", "ox_box", BoxPrinter),
            ("color", "ox_color", ColorPrinter),
            ("matrix", "ox_matrix", MatrixPrinter),
            ("polygon", "ox_polygon", PolygonPrinter),
            ("solid", "ox_solid", SolidPrinter),
            ("triangle set", "ox_triangle_set", TriangleSetPrinter),
            ("table", "ox_csv", TablePrinter),
            ("combination", "ox_csg", CombinationPrinter)):
        collection.add_printer(name, "^ox::" + expression + "$", unless_hidden(printer))
    return collection


def unless_hidden(printer):
    """The printer for a value whose class is known; classes with virtual functions may be not."""
    def chosen(value):
        if value.type.strip_typedefs().fields():
            return printer(value)
        return HiddenPrinter(getattr(printer, "name", "object"))
    return chosen


gdb.printing.register_pretty_printer(gdb.current_objfile(), printers(), replace=True)
