"""A disk image with the application and a link to where it belongs.

What is opened where it was downloaded, macOS runs from a place that it makes up each time. Such a copy can
neither be updated nor launched at login; dragging it onto the link ends that.
"""

from .steps import Command


def steps(application, copy, folder, image):
    """All that lies in the folder is in the image. `copy` gives the steps that copy a bundle."""
    return [
        Command("mkdir", "-p", folder),
        *copy(application, folder / application.name),
        Command("ln", "-s", "/Applications", folder / "Applications"),
        Command(
            "hdiutil", "create", "-volname", application.stem, "-srcfolder", folder, "-format", "UDZO", image
        ),
    ]
