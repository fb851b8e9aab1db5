"""Writes drawings of lines, arcs, circles, polylines and block references as text DXF (release 2000).

The same drawing gives the same bytes: numbers are rounded to a billionth of a unit, handles are counted.
"""

import math

MILLIMETRES = 4  # code of the unit in $INSUNITS


def polar(radius, angle):
    """The point at a radius and an angle in degrees."""
    return radius * math.cos(math.radians(angle)), radius * math.sin(math.radians(angle))


def number(value):
    """A coordinate as text: nine decimals, none of them idle."""
    text = f"{value:.9f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def point(code, where):
    return [(code, number(where[0])), (code + 10, number(where[1])), (code + 20, "0")]


class Entities:
    """A list of entities as a block or the model space holds it."""

    def __init__(self):
        self.items = []  # (type, layer, [(subclass, its pairs)])

    def line(self, layer, start, end):
        self.items.append(("LINE", layer, [("AcDbLine", [*point(10, start), *point(11, end)])]))

    def arc(self, layer, centre, radius, start_angle, end_angle):
        """An arc anticlockwise from one angle to another, in degrees."""
        self.items.append(("ARC", layer, [
            ("AcDbCircle", [*point(10, centre), (40, number(radius))]),
            ("AcDbArc", [(50, number(start_angle % 360)), (51, number(end_angle % 360))])]))

    def circle(self, layer, centre, radius):
        self.items.append(("CIRCLE", layer, [("AcDbCircle", [*point(10, centre), (40, number(radius))])]))

    def polyline(self, layer, vertices):
        """A closed polyline; each vertex is x, y and the bulge of the piece that follows it."""
        pairs = [(90, len(vertices)), (70, 1)]
        for x, y, bulge in vertices:
            pairs += [(10, number(x)), (20, number(y))]
            if bulge:
                pairs.append((42, number(bulge)))
        self.items.append(("LWPOLYLINE", layer, [("AcDbPolyline", pairs)]))

    def insert(self, layer, block, angle=0.0, mirrored=False):
        """A block about the origin, turned by an angle after it was, if asked for, mirrored about its own x axis."""
        pairs = [(2, block), *point(10, (0, 0))]
        if mirrored:
            pairs += [(41, "1"), (42, "-1"), (43, "1")]
        if angle:
            pairs.append((50, number(angle % 360)))
        self.items.append(("INSERT", layer, [("AcDbBlockReference", pairs)]))


class Turned:
    """Draws into a list of entities, turned about the origin after it was, if asked for, mirrored about the x axis."""

    def __init__(self, entities, angle, mirrored=False):
        self.entities = entities
        self.angle = angle
        self.sign = -1 if mirrored else 1

    def place(self, where):
        x, y = where[0], self.sign * where[1]
        c, s = polar(1, self.angle)
        return c * x - s * y, s * x + c * y

    def line(self, layer, start, end):
        self.entities.line(layer, self.place(start), self.place(end))

    def arc(self, layer, centre, radius, start_angle, end_angle):
        ends = sorted([self.sign * start_angle, self.sign * end_angle])
        self.entities.arc(layer, self.place(centre), radius, self.angle + ends[0], self.angle + ends[1])

    def circle(self, layer, centre, radius):
        self.entities.circle(layer, self.place(centre), radius)

    def polyline(self, layer, vertices):
        self.entities.polyline(layer, [(*self.place((x, y)), self.sign * bulge) for x, y, bulge in vertices])


class Drawing(Entities):
    """The model space of a drawing, with the drawing's layers and blocks."""

    def __init__(self, title, layers):
        """`title` becomes a comment at the top of the file. `layers`: name -> colour index."""
        super().__init__()
        self.title = title
        self.layers = layers
        self.blocks = {}

    def block(self, name):
        """A new block, to be filled."""
        self.blocks[name] = Entities()
        return self.blocks[name]

    def text(self):
        return _Writer(self).text()


class _Writer:
    """Lays a drawing out as DXF. Each object gets the next handle and names its owner's."""

    def __init__(self, drawing):
        self.drawing = drawing
        self.pairs = []
        self.handles = 0
        self.records = {name: self.handle() for name in ["*Model_Space", "*Paper_Space", *drawing.blocks]}

    def handle(self):
        self.handles += 1
        return f"{self.handles:X}"

    def text(self):
        rest = self.section("TABLES", self.tables())
        rest += self.section("BLOCKS", self.blocks())
        rest += self.section("ENTITIES", self.entities(self.drawing, "*Model_Space"))
        rest += self.section("OBJECTS", self.objects())
        pairs = [(999, self.drawing.title)]
        pairs += self.section("HEADER", self.header())  # last, because it names the next free handle
        pairs += rest + [(0, "EOF")]
        return "".join(f"{code}\n{value}\n" for code, value in pairs)

    @staticmethod
    def section(name, pairs):
        return [(0, "SECTION"), (2, name), *pairs, (0, "ENDSEC")]

    def header(self):
        return [(9, "$ACADVER"), (1, "AC1015"), (9, "$DWGCODEPAGE"), (3, "ANSI_1252"),
                (9, "$INSUNITS"), (70, MILLIMETRES), (9, "$MEASUREMENT"), (70, 1),
                (9, "$HANDSEED"), (5, f"{self.handles + 1:X}")]

    def tables(self):
        plain_line = [(3, ""), (72, 65), (73, 0), (40, "0")]
        plain_text = [(40, "0"), (41, "1"), (50, "0"), (71, 0), (42, "2.5"), (3, "txt"), (4, "")]
        layers = {"0": 7, **self.drawing.layers}
        pairs = self.table("VPORT", "AcDbViewportTableRecord", {})
        pairs += self.table("LTYPE", "AcDbLinetypeTableRecord",
                            {name: plain_line for name in ("ByBlock", "ByLayer", "Continuous")})
        pairs += self.table("LAYER", "AcDbLayerTableRecord",
                            {name: [(62, colour), (6, "Continuous")] for name, colour in layers.items()})
        pairs += self.table("STYLE", "AcDbTextStyleTableRecord", {"Standard": plain_text})
        pairs += self.table("VIEW", "AcDbViewTableRecord", {})
        pairs += self.table("UCS", "AcDbUCSTableRecord", {})
        pairs += self.table("APPID", "AcDbRegAppTableRecord", {"ACAD": []})
        pairs += self.table("DIMSTYLE", "AcDbDimStyleTableRecord", {})
        return pairs + self.block_records()

    def table(self, name, subclass, rows):
        own = self.handle()
        pairs = [(0, "TABLE"), (2, name), (5, own), (330, "0"), (100, "AcDbSymbolTable"), (70, len(rows))]
        for row, values in rows.items():
            pairs += [(0, name), (5, self.handle()), (330, own), (100, "AcDbSymbolTableRecord"), (100, subclass),
                      (2, row), (70, 0), *values]
        return pairs + [(0, "ENDTAB")]

    def block_records(self):
        own = self.handle()
        pairs = [(0, "TABLE"), (2, "BLOCK_RECORD"), (5, own), (330, "0"), (100, "AcDbSymbolTable"),
                 (70, len(self.records))]
        for name, record in self.records.items():
            pairs += [(0, "BLOCK_RECORD"), (5, record), (330, own), (100, "AcDbSymbolTableRecord"),
                      (100, "AcDbBlockTableRecord"), (2, name)]
        return pairs + [(0, "ENDTAB")]

    def blocks(self):
        pairs = []
        for name, record in self.records.items():
            pairs += [(0, "BLOCK"), (5, self.handle()), (330, record), (100, "AcDbEntity"), (8, "0"),
                      (100, "AcDbBlockBegin"), (2, name), (70, 0), *point(10, (0, 0)), (3, name), (1, "")]
            if name in self.drawing.blocks:
                pairs += self.entities(self.drawing.blocks[name], name)
            pairs += [(0, "ENDBLK"), (5, self.handle()), (330, record), (100, "AcDbEntity"), (8, "0"),
                      (100, "AcDbBlockEnd")]
        return pairs

    def entities(self, entities, owner):
        pairs = []
        for kind, layer, subclasses in entities.items:
            pairs += [(0, kind), (5, self.handle()), (330, self.records[owner]), (100, "AcDbEntity"), (8, layer)]
            for subclass, values in subclasses:
                pairs += [(100, subclass), *values]
        return pairs

    def objects(self):
        root, groups = self.handle(), self.handle()
        return [(0, "DICTIONARY"), (5, root), (330, "0"), (100, "AcDbDictionary"), (281, 1), (3, "ACAD_GROUP"),
                (350, groups),
                (0, "DICTIONARY"), (5, groups), (330, root), (100, "AcDbDictionary"), (281, 1)]
