"""CodeResources: a hash of everything in a bundle that is neither its program nor its Info.plist."""

import hashlib
import os
import plistlib
import re

from ..steps import Failure

SEAL = "_CodeSignature"

_LOCALIZED = {
    r"^Resources/.*\.lproj/": {"optional": True, "weight": 1000.0},
    r"^Resources/.*\.lproj/locversion.plist$": {"omit": True, "weight": 1100.0},
    r"^Resources/Base\.lproj/": {"weight": 1010.0},
}
# What systems before OS X 10.9 read.
_OLD_RULES = {**_LOCALIZED, r"^Resources/": True, r"^version.plist$": True}
_CODE_FOLDERS = (
    r"^(Frameworks|SharedFrameworks|PlugIns|Plug-ins|XPCServices|Helpers|MacOS|"
    r"Library/(Automator|Spotlight|LoginItems))/"
)
_RULES = {
    **_LOCALIZED,
    r".*\.dSYM($|/)": {"weight": 11.0},
    r"^(.*/)?\.DS_Store$": {"omit": True, "weight": 2000.0},
    _CODE_FOLDERS: {"nested": True, "weight": 10.0},
    r"^.*": True,
    r"^Info\.plist$": {"omit": True, "weight": 20.0},
    r"^PkgInfo$": {"omit": True, "weight": 20.0},
    r"^Resources/": {"weight": 20.0},
    r"^[^/]+$": {"nested": True, "weight": 10.0},
    r"^embedded\.provisionprofile$": {"weight": 20.0},
    r"^version\.plist$": {"weight": 20.0},
}


class Contents:
    """What lies in the folder that a seal covers, sorted out by the rules. All paths are relative to it."""

    def __init__(self, folder, program):
        self.folder = folder
        self.files, self.links, self.nested = [], [], []
        self._own = {SEAL, "CodeResources", program}
        self._sort_out("")
        for entries in (self.files, self.links, self.nested):
            entries.sort()

    def _sort_out(self, parent):
        for entry in os.scandir(self.folder / parent):
            path = f"{parent}{entry.name}"
            rule = _rule_for(_RULES, path)
            if path in self._own or rule.get("omit"):
                continue
            if entry.is_symlink():
                self.links.append(path)
            elif entry.is_dir():
                # Of folders among code, those with a suffix are bundles.
                if rule.get("nested") and "." in entry.name:
                    self.nested.append(path)
                else:
                    self._sort_out(f"{path}/")
            elif not entry.is_file():
                raise Failure(f"{entry.path} is neither a file nor a folder nor a link")
            else:
                (self.nested if rule.get("nested") else self.files).append(path)


def code_resources(contents, nested):
    """The property list. `nested` has for each path of nested code its seal (bundles.Seal)."""
    old, new = {}, {}
    for path in contents.files:
        data = (contents.folder / path).read_bytes()
        old_rule, rule = _rule_for(_OLD_RULES, path), _rule_for(_RULES, path)
        if old_rule and not old_rule.get("omit"):
            sha1 = hashlib.sha1(data).digest()
            old[path] = {"hash": sha1, "optional": True} if old_rule.get("optional") else sha1
        optional = {"optional": True} if rule.get("optional") else {}
        new[path] = {"hash2": hashlib.sha256(data).digest(), **optional}
    for path in contents.links:
        new[path] = {"symlink": os.readlink(contents.folder / path)}
    for path in contents.nested:
        new[path] = {"cdhash": nested[path].cdhash, "requirement": nested[path].requirement}
    return plistlib.dumps({"files": old, "files2": new, "rules": _OLD_RULES, "rules2": _RULES})


def _rule_for(rules, path):
    """The heaviest of the rules that apply, as a dictionary; an empty one when none does."""
    found, weight = {}, 0.0
    for pattern, rule in rules.items():
        values = rule if isinstance(rule, dict) else {"weight": 1.0}
        if values["weight"] > weight and re.search(pattern, path):
            found, weight = values, values["weight"]
    return found
