"""Info.plist and the icons are what macOS expects, and the pictures are those of their drawings."""

import plistlib
import re

from . import icns, png, renderings
from .result import Finding, Result

FOLDER = renderings.FOLDER
PROPERTY_LIST = f"{FOLDER}/Info.plist"
RENDER_AGAIN = "run tools/render-resources"

PROPERTIES = {
    "CFBundleDevelopmentRegion": "en",
    "CFBundleDisplayName": "Kestrune",
    "CFBundleExecutable": "Kestrune",
    "CFBundleIconFile": "AppIcon",
    "CFBundleIdentifier": "org.kestrune.Kestrune",
    "CFBundleInfoDictionaryVersion": "6.0",
    "CFBundleName": "Kestrune",
    "CFBundlePackageType": "APPL",
    "LSAppNapIsDisabled": True,
    "LSApplicationCategoryType": "public.app-category.utilities",
    "LSMinimumSystemVersion": "13.0",
    "LSMultipleInstancesProhibited": True,
    "LSUIElement": True,
    "NSHighResolutionCapable": True,
    "NSPrincipalClass": "NSApplication",
    "SUAllowsAutomaticUpdates": False,
    "SUEnableAutomaticChecks": True,
}
# Numbers here would leave a question mark where the application shows its version.
VERSIONS = ("CFBundleShortVersionString", "CFBundleVersion")
VERSION = re.compile(r"\d+(\.\d+){0,2}")

HOLDER = re.compile(r"^Copyright \(c\) (?P<holder>.+)$", re.MULTILINE)


def run(tree):
    drawings = {renderings.MENU_BAR_ICON, renderings.APPLICATION_ICON, renderings.SMALL_APPLICATION_ICON}
    wanted = [*sorted(drawings), *renderings.PICTURES, renderings.ICON_FILE, "Info.plist"]
    names = [name for name in wanted if f"{FOLDER}/{name}" in tree.files]
    present = {name: (tree.root / FOLDER / name).read_bytes() for name in names}
    findings = [Finding(FOLDER, 1, f"{name} is missing; add it") for name in wanted if name not in present]

    if "Info.plist" in present:
        findings += _property_list(present["Info.plist"], _copyright(tree))
    for name in renderings.PICTURES.keys() & present.keys():
        findings += _picture(f"{FOLDER}/{name}", present[name], renderings.PICTURES[name], present)
        if name in renderings.TEMPLATES:
            findings += _template(f"{FOLDER}/{name}", present[name])
    if renderings.ICON_FILE in present:
        findings += _icon(present[renderings.ICON_FILE], present)
    return Result(f"{len(present)} files", sorted(findings))


def _copyright(tree):
    """What the license says, in the form that the bundle shows, or None without a license."""
    holder = HOLDER.search(tree.text("LICENSE")) if "LICENSE" in tree.files else None
    return f"© {holder['holder']}" if holder else None


def _property_list(data, copyright_text):
    try:
        properties = plistlib.loads(data)
    except Exception as error:  # The library passes on whatever its parsers raise.
        yield Finding(PROPERTY_LIST, 1, f"is no property list ({error}); correct it")
        return
    if not isinstance(properties, dict):
        yield Finding(PROPERTY_LIST, 1, "is no dictionary; make it one")
        return
    expected = PROPERTIES | ({"NSHumanReadableCopyright": copyright_text} if copyright_text else {})
    for key, value in expected.items():
        if key not in properties:
            yield Finding(PROPERTY_LIST, 1, f"{key} is missing; add it as {value!r}")
        elif type(properties[key]) is not type(value) or properties[key] != value:
            yield Finding(PROPERTY_LIST, 1, f"{key} is {properties[key]!r}; make it {value!r}")
    for key in VERSIONS:
        value = properties.get(key)
        if not isinstance(value, str) or not VERSION.fullmatch(value):
            yield Finding(PROPERTY_LIST, 1, f"{key} is {value!r}; make it a string of one to three numbers")


def _picture(path, data, rendering, present, entry=""):
    """What is wrong with one rendering; `entry` says which of several in the file it is."""
    drawing, side = rendering
    try:
        chunks = png.chunks(data)
    except png.NotReadable as error:
        yield Finding(path, 1, f"{entry}{error}; {RENDER_AGAIN}")
        return
    width, height = png.size(chunks)
    if (width, height) != (side, side):
        yield Finding(path, 1, f"{entry}is {width}×{height} pixels, not {side}×{side}; {RENDER_AGAIN}")
    if drawing in present:
        if png.text(chunks, renderings.KEYWORD) != renderings.origin(drawing, present[drawing]):
            yield Finding(path, 1, f"{entry}was not rendered from {drawing} as it is now; {RENDER_AGAIN}")


def _template(path, data):
    """The menu bar draws a template in a colour of its own and takes its shape from the alpha channel."""
    try:
        pixels = [pixel for row in png.pixels(png.chunks(data)) for pixel in row]
    except png.NotReadable as error:
        yield Finding(path, 1, f"{error}; {RENDER_AGAIN}")
        return
    if any(alpha and (red or green or blue) for red, green, blue, alpha in pixels):
        yield Finding(path, 1, "has colours; a template is black and transparent, draw it so")
    if {0, 255} - {alpha for *_, alpha in pixels}:
        yield Finding(path, 1, "has no fully opaque or no clear pixel; a template needs both, draw them")


def _icon(data, present):
    path = f"{FOLDER}/{renderings.ICON_FILE}"
    try:
        entries = icns.read(data)
    except icns.NotReadable as error:
        yield Finding(path, 1, f"{error}; {RENDER_AGAIN}")
        return
    for kind, rendering in renderings.ICON_ENTRIES.items():
        if kind in entries:
            yield from _picture(path, entries[kind], rendering, present, f"{kind} ")
        else:
            yield Finding(path, 1, f"{kind} is missing; {RENDER_AGAIN}")
