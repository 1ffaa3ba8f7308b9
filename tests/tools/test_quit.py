"""tools/releasing/quit.js asks every Kestrune that runs to quit, seen with stand-ins for what AppKit has."""

import json
import shutil
import subprocess
import unittest

from trees import REPOSITORY

# What osascript gives a script, with two running applications of one identifier and one of another.
JAVASCRIPT_OF_A_MAC = """
const ours = "org.kestrune.Kestrune";
const applications = [[ours, 41], ["org.kestrune.Other", 42], [ours, 43]];
const asked = [];
const ObjC = {import: (framework) => asked.push(framework)};
const $ = {NSRunningApplication: {runningApplicationsWithBundleIdentifier: (identifier) => {
    const found = applications.filter(([own]) => own === identifier);
    return {count: found.length, objectAtIndex: (index) => ({
        processIdentifier: found[index][1],
        get terminate() { asked.push(found[index][1]); return true; },
    })};
}}};
"""


@unittest.skipUnless(shutil.which("node"), "not installed: nodejs")
class QuitScript(unittest.TestCase):
    def quit(self, identifier):
        """What it prints, and what it asked for in order."""
        script = (REPOSITORY / "tools/releasing/quit.js").read_text(encoding="utf-8")
        call = f"console.log(JSON.stringify([run([{json.dumps(identifier)}]), asked]));"
        result = subprocess.run(
            ["node", "-e", f"{JAVASCRIPT_OF_A_MAC}{script}{call}"], capture_output=True, check=True
        )
        return json.loads(result.stdout)

    def test_asks_every_one_of_the_identifier_to_quit_and_prints_its_process(self):
        self.assertEqual(self.quit("org.kestrune.Kestrune"), ["41\n43", ["AppKit", 41, 43]])

    def test_prints_nothing_when_none_runs(self):
        self.assertEqual(self.quit("org.kestrune.None"), ["", ["AppKit"]])


if __name__ == "__main__":
    unittest.main()
