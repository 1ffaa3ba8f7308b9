"""Which pictures are rendered from which drawings, and how a picture knows its drawing."""

import hashlib

FOLDER = "Kestrune/Resources"
MENU_BAR_ICON = "MenuBarIcon.svg"
APPLICATION_ICON = "AppIcon.svg"
# The details of the large drawing turn to mud below 128 pixels.
SMALL_APPLICATION_ICON = "AppIcon-small.svg"

# File: (drawing, side in pixels).
PICTURES = {
    "MenuBarIcon.png": (MENU_BAR_ICON, 20),
    "MenuBarIcon@2x.png": (MENU_BAR_ICON, 40),
    "AppIcon.png": (APPLICATION_ICON, 256),
}
TEMPLATES = ("MenuBarIcon.png", "MenuBarIcon@2x.png")

ICON_FILE = "AppIcon.icns"
# Type of the entry: (drawing, side in pixels). The types from ic10 to ic14 are those of twice the resolution.
ICON_ENTRIES = {
    "icp4": (SMALL_APPLICATION_ICON, 16),
    "ic11": (SMALL_APPLICATION_ICON, 32),
    "icp5": (SMALL_APPLICATION_ICON, 32),
    "ic12": (SMALL_APPLICATION_ICON, 64),
    "ic07": (APPLICATION_ICON, 128),
    "ic13": (APPLICATION_ICON, 256),
    "ic08": (APPLICATION_ICON, 256),
    "ic14": (APPLICATION_ICON, 512),
    "ic09": (APPLICATION_ICON, 512),
    "ic10": (APPLICATION_ICON, 1024),
}

# Under this keyword, a picture's own text says what it was rendered from.
KEYWORD = "Source"


def origin(drawing, contents):
    """The text under the keyword, for a drawing with the given bytes."""
    return f"{drawing} sha256:{hashlib.sha256(contents).hexdigest()}"
