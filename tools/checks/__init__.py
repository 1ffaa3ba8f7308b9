"""The checks of tools/check. Each module has run(tree), which returns a Result."""

from . import (
    contract,
    documents,
    format,
    includes,
    pictures,
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
    "documents": documents,
    "style": style,
    "sleeping": sleeping,
    "strings": strings,
    "resources": resources,
    "contract": contract,
    "workflows": workflows,
    "pictures": pictures,
    "format": format,
    "tidy": tidy,
}
