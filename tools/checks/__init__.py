"""The checks of tools/check. Each module has run(tree), which returns a Result."""

from . import (
    contract,
    format,
    includes,
    resources,
    sleeping,
    strings,
    style,
    tidy,
    unbuilt,
    words,
    workflows,
)

# In the order they run: the quick ones first.
ALL = {
    "includes": includes,
    "unbuilt": unbuilt,
    "words": words,
    "style": style,
    "sleeping": sleeping,
    "strings": strings,
    "resources": resources,
    "contract": contract,
    "workflows": workflows,
    "format": format,
    "tidy": tidy,
}
