"""What stands in the drawing for each light of tests/data/scripts/every_option.scr, by the rules of the commands.

`LIGHTS` has them in the order of the script. `entity(light, version)` and `photometry(light)` give the values of a light by
group code, in the order of the file; a value of None is a tag that must not be there.
"""
import math
import re

POINT, SPOT, DISTANT = 2, 3, 1
NONE, LINEAR, SQUARE = 0, 1, 2
SHARP, MAPPED, SAMPLED = 0, 1, 2
LINE, RECTANGLE, DISK, CYLINDER, SPHERE = range(5)
CANDELA, FLUX, ILLUMINANCE = range(3)

# what 1500 cd give at a distance of 1 mm, where the illuminance is asked for by its distance
LUX = 1500 * 1000000
FOOT_CANDLES = 1500 * 92903.04


class EndOf:
    """A path that ends with a name."""

    def __init__(self, name):
        self.name = name

    def matches(self, text):
        return re.search(r"(^|[/\\])" + re.escape(self.name) + "$", text) is not None

    def __repr__(self):
        return f"…{self.name}"


class About:
    """A number that two ways of integration agree on."""

    def __init__(self, number):
        self.number = number

    def matches(self, text):
        return abs(float(text) - self.number) <= 1e-6 * self.number

    def __repr__(self):
        return f"about {self.number}"


class Nearest:
    """A colour number near the true colour; which one is the program's choice."""

    @staticmethod
    def matches(text):
        return 1 <= int(text) <= 255

    def __repr__(self):
        return "any colour number"


# as tests/tools/ies_flux.py works them out, cell by cell
FLUX_OF = {"downlight.ies": About(999.9788), "street.ies": About(8000.0096), "wall_washer.ies": About(2000.0030)}


def index(number):
    return {"aci": number, "rgb": None, "book": None, "word": 0xC3000000 + number}


def rgb(number, book=None):
    return {"aci": Nearest(), "rgb": number, "book": book, "word": 0xC2000000 + number}


def book(name, number):
    return rgb(number, name)


NEW = {
    "on": 1, "color": index(7), "intensity": 1, "position": (0, 0, 0), "attenuation": (NONE, 0, 1, 10), "cone": (45, 50),
    "shadows": (1, SHARP, 256, 1), "shape": (RECTANGLE, 0, 0, 0), "samples": 16, "visible": 0, "power": (CANDELA, 1500, 1),
    "lamp": (1, 3600, 0), "is_web": 0, "web": None, "rotation": (0, 0, 0), "has_target": 0, "target": (0, 0, -10),
}


def light(name, kind, **values):
    return {**NEW, "name": name, "kind": kind, **values}


def point(name, position, **values):
    return light(name, POINT, position=position, **values)


def spot(name, z, **values):
    return light(name, SPOT, position=(0, 0, z), target=(1, 0, 0), has_target=1, **{"shape": (DISK, 0, 0, 0), **values})


def targeted(name, position, target, **values):
    return light(name, POINT, position=position, target=target, has_target=1, **values)


def free_spot(name, position, **values):
    return light(name, SPOT, position=position, target=below(position), **{"shape": (DISK, 0, 0, 0), **values})


def web(name, position, target, **values):
    return targeted(name, position, target, is_web=1, **values)


def free_web(name, position, **values):
    return point(name, position, target=below(position), is_web=1, **values)


def distant(name, position, target, **values):
    return light(name, DISTANT, position=position, target=target, has_target=1, **values)


def below(position):
    x, y, z = position
    return (x, y, z - 10)


# shape: kind, length, width, radius; lamp: by preset, kelvin, preset; power: method, value, distance;
# attenuation: type, limits in use, start, end; shadows: on, type, map size, softness
LIGHTS = [
    point("吊灯 一号", (1000, 2000, 3000), intensity=0.75, on=0, power=(FLUX, 12345, 2500), lamp=(0, 2700, 7),
          shadows=(1, SAMPLED, 512, 4), shape=(CYLINDER, 45, 25, 15), samples=64, visible=1, attenuation=(SQUARE, 1, 5, 500),
          color=book("Web Colors$rebeccapurple", 0x663399)),
    point("点 二", (1, 2, 3), intensity=1000000, power=(CANDELA, 800, 1), lamp=(1, 3600, 1), shape=(DISK, 0, 0, 7),
          attenuation=(LINEAR, 1, 2.5, 25), color=rgb(0xFF8000)),
    point("点 三", (2, 3, 4), on=0, power=(ILLUMINANCE, 300, 1), lamp=(1, 3600, 3), shadows=(0, SAMPLED, 256, 1),
          shape=(LINE, 9, 0, 0), visible=1, color=rgb(0x00FF00)),
    point("点 四", (3, 4, 5), intensity=0, power=(FLUX, 5000, 1), lamp=(1, 3600, 4), shadows=(1, MAPPED, 2048, 7),
          shape=(SPHERE, 0, 0, 3), samples=1024, attenuation=(NONE, 0, 40, 0.5), color=index(30)),
    spot("聚 一", 10, intensity=2, power=(CANDELA, 0, 1), lamp=(1, 3600, 5), cone=(math.radians(30), 60),
         shadows=(1, SAMPLED, 256, 1), shape=(RECTANGLE, 4, 2, 0), samples=128, visible=1, attenuation=(SQUARE, 1, 1.5, 15),
         color=rgb(0x010203)),
    spot("聚 二", 20, on=0, power=(FLUX, 250, 1), lamp=(1, 3600, 6), cone=(29, 30), shape=(DISK, 0, 0, 1.25),
         attenuation=(LINEAR, 0, 1, 10), color=index(1)),
    spot("聚 三", 30, power=(ILLUMINANCE, LUX, 40), lamp=(1, 3600, 7), cone=(160, 160), shadows=(1, MAPPED, 64, 1),
         attenuation=(NONE, 1, 1, 10), color=rgb(0xFF8000)),
    spot("聚 四", 40, intensity=0.001, on=0, power=(CANDELA, 10000000, 1), lamp=(0, 1000, 0), cone=(0, 46),
         shadows=(0, SAMPLED, 256, 1), shape=(DISK, 0, 0, 6), samples=0, attenuation=(NONE, 0, 0, 0),
         color=book("Neutral Greys$Grey 25", 0x404040)),
    targeted("目 一", (100, 200, 300), (400, 500, 600), intensity=3, power=(ILLUMINANCE, FOOT_CANDLES, 12),
             lamp=(1, 3600, 8), shadows=(1, SAMPLED, 256, 1), shape=(CYLINDER, 9, 0, 8), visible=1,
             attenuation=(SQUARE, 1, 3, 30), color=book("Web Colors$teal", 0x008080)),
    targeted("目 二", (101, 201, 301), (101, 201, 301), on=0, power=(CANDELA, 1, 1), lamp=(1, 3600, 9),
             shape=(LINE, 11, 0, 0), attenuation=(LINEAR, 0, 1, 10), color=rgb(0x0000FF)),
    targeted("目 三", (102, 202, 302), (0, 0, 0), power=(FLUX, 0.5, 1), lamp=(1, 3600, 10), shadows=(1, MAPPED, 4096, 10),
             shape=(DISK, 0, 0, 2), samples=1, attenuation=(NONE, 1, 1, 10), color=index(255)),
    targeted("目 四", (103, 203, 303), (1, 1, 1), power=(ILLUMINANCE, 77, 1), lamp=(0, 20000, 0),
             shadows=(0, SAMPLED, 256, 1), shape=(RECTANGLE, 5.5, 6.5, 5), attenuation=(NONE, 0, 1, 99), color=rgb(0x202060)),
    free_spot("自聚 一", (5, 6, 7), intensity=4, on=0, power=(CANDELA, 25, 1), lamp=(1, 3600, 11), cone=(44, 60),
              shadows=(1, SAMPLED, 256, 1), shape=(RECTANGLE, 1, 0.5, 0), samples=32, attenuation=(LINEAR, 1, 6, 66),
              color=rgb(0x0C2238)),
    free_spot("自聚 二", (6, 7, 8), power=(FLUX, 1, 1), lamp=(1, 3600, 12), cone=(43, 44), shape=(DISK, 0, 0, 0.1), visible=1,
              attenuation=(SQUARE, 0, 1, 10), color=index(1)),
    free_spot("自聚 三", (7, 8, 9), power=(ILLUMINANCE, 55, 1), lamp=(1, 3600, 13), cone=(0, 160),
              shadows=(1, MAPPED, 128, 2), attenuation=(NONE, 1, 1, 10), color=rgb(0xFFFFFF)),
    free_spot("自聚 四", (8, 9, 10), on=0, power=(ILLUMINANCE, LUX, 3), lamp=(0, 6500, 0), cone=(9.5, 10.5),
              shadows=(0, SHARP, 256, 1), attenuation=(NONE, 0, 1, 7), color=book("Web Colors$gold", 0xFFD700)),
    web("域 一", (50, 60, 70), (80, 90, 100), intensity=5, on=0, power=(CANDELA, 123.5, 1), web="street.ies",
        rotation=(30, 370, 0.5), shadows=(1, SAMPLED, 256, 1), shape=(LINE, 4.5, 0, 0), samples=256, visible=1,
        color=rgb(0xC86400)),
    web("域 二", (51, 61, 71), (51, 61, 71), power=(FLUX, 900, 1), lamp=(1, 3600, 1), web="wall_washer.ies",
        shape=(CYLINDER, 2, 0, 1), color=index(40)),
    web("域 三", (52, 62, 72), (0, 0, 0), power=(ILLUMINANCE, 6, 1), lamp=(1, 3600, 2), rotation=(0, 15, 0),
        shadows=(1, MAPPED, 1024, 3), shape=(SPHERE, 0, 0, 0.75), color=rgb(0xFFFF00)),
    web("域 四", (53, 63, 73), (1, 2, 3), on=0, power=(ILLUMINANCE, LUX, 0.5), lamp=(0, 4000, 0), web="downlight.ies",
        shadows=(0, SAMPLED, 256, 1), shape=(DISK, 0, 0, 33), color=book("Neutral Greys$Grey 95", 0xF2F2F2)),
    free_web("自域 一", (60, 70, 80), intensity=6, power=(FLUX, 4321, 1), lamp=(1, 3600, 3), web="wall_washer.ies",
             rotation=(1, 0, 0), shadows=(1, SAMPLED, 256, 1), shape=(RECTANGLE, 2, 3, 0), samples=512, color=rgb(0x090807)),
    free_web("自域 二", (61, 71, 81), on=0, power=(ILLUMINANCE, 0.25, 1), lamp=(1, 3600, 4), rotation=(0, 0, 359.5),
             shape=(DISK, 0, 0, 4), visible=1, color=book("Web Colors$tomato", 0xFF6347)),
    free_web("自域 三", (62, 72, 82), power=(ILLUMINANCE, LUX, 1000), lamp=(1, 3600, 9), web="street.ies",
             shadows=(1, MAPPED, 256, 10), shape=(SPHERE, 0, 0, 12), color=index(4)),
    free_web("自域 四", (63, 73, 83), on=0, power=(CANDELA, 1500000, 1), lamp=(0, 5000, 0), web="downlight.ies",
             rotation=(1, 2, 3), shadows=(0, SAMPLED, 256, 1), shape=(CYLINDER, 7, 0, 6), color=rgb(0x527A52)),
    distant("平 一", (10, 20, 100), (13, 24, 100), intensity=7, on=0, power=(CANDELA, 700, 1), shadows=(1, MAPPED, 512, 9),
            color=rgb(0x323C46)),
    distant("平 二", (0, 0, 0), (0, 0.6, 0.8), power=(CANDELA, 0.125, 1), lamp=(1, 3600, 8)),
    distant("平 三", (0, 0, 0), (1, 1, 1), lamp=(1, 3600, 12), shadows=(0, SHARP, 256, 1), color=rgb(0xCCD1C7)),
    distant("平 四", (0, 0, 0), (1 / 3, 2 / 3, -2 / 3), intensity=0.5, on=0, lamp=(0, 19999, 0), shadows=(1, MAPPED, 64, 5),
            color=book("Web Colors$skyblue", 0x87CEEB)),
]


def color_tags(color, version):
    """AC1015 has one colour word in place of 63, 421 and 431."""
    if version > "AC1015":
        return [(63, color["aci"]), (421, color["rgb"]), (431, color["book"])]
    return [(90, color["word"] - (1 << 32)), (63, None), (421, None), (431, None)]


def entity(light, version):
    return [
        (1, light["name"]), (70, light["kind"]), (290, light["on"]), *color_tags(light["color"], version), (291, 0),
        (40, light["intensity"]), *zip((10, 20, 30), light["position"]), *zip((11, 21, 31), light["target"]),
        *zip((72, 292, 41, 42), light["attenuation"]), *zip((50, 51), light["cone"]),
        *zip((293, 73, 91, 280), light["shadows"]),
    ]


def web_path(light):
    if light["web"]:
        return EndOf(light["web"])
    return "" if light["is_web"] else None


def photometry(light):
    path = light["web"]
    return [
        (290, light["is_web"]), (300, web_path(light)), *zip((70, 40, 41), light["power"]),
        *zip((71, 42, 72), light["lamp"]), *zip((43, 44, 45), light["rotation"]), *zip((73, 46, 47, 48), light["shape"]),
        (74, light["samples"]), (75, light["visible"]), (76, light["has_target"]), (49, FLUX_OF[path] if path else 0),
        (50, 0), (51, 0), (53, math.degrees(1)), (54, 0), (55, 0), (77, 0),
    ]
