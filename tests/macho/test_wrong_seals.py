"""The checker refuses what a signer could get wrong: seals whose hashes agree and that say something else."""

import plistlib
import unittest
from unittest import mock

from tiny_bundles import SealTest, make_application, put_program

from releasing.sealing import resources, signature

HALF = "Tiny.app/Contents/MacOS/Tiny: x86_64 half"
LIST = "Tiny.app/Contents/_CodeSignature/CodeResources"
OTHER_CODE = "Tiny.app/Contents/MacOS/other"


class WrongSeal(SealTest):
    def setUp(self):
        super().setUp()
        self.app = make_application(self.root / "Tiny.app")
        put_program(self.app / "Contents/MacOS/other", "arm64")
        self.seal(self.app)
        self.assert_holds(self.app)

    def seal_with_list(self, change):
        """With the list of resources as `change` leaves it, signed as if it were right."""
        right = resources.code_resources

        def wrong(*arguments):
            sealed = plistlib.loads(right(*arguments))
            change(sealed)
            return plistlib.dumps(sealed)

        with mock.patch.object(resources, "code_resources", wrong):
            self.seal(self.app)

    def assert_list_refused(self, change, message):
        self.seal_with_list(change)
        self.assert_refused(self.app, message)


class ListOfResources(WrongSeal):
    def test_with_a_rule_that_leaves_files_out_is_refused(self):
        for key in ("rules", "rules2"):
            change = {"^Resources/Icon": {"omit": True, "weight": 3000.0}}
            self.assert_list_refused(
                lambda sealed, key=key, change=change: sealed[key].update(change),
                f"{LIST}: has other rules than every seal has",
            )

    def test_without_files_is_refused(self):
        for key in ("files", "files2"):
            self.assert_list_refused(lambda sealed, key=key: sealed.pop(key), f"{LIST}: has no {key}")

    def test_of_more_files_than_an_application_has_is_refused(self):
        more = {f"Resources/{number}": {"hash2": bytes(32)} for number in range(1000)}
        self.seal_with_list(lambda sealed: sealed["files2"].update(more))
        size = (self.app.parent / LIST).stat().st_size
        self.assert_refused(self.app, f"{LIST}: has {size} bytes, and lists of up to 65536 are read")

    def test_that_lets_a_resource_be_left_out_is_refused(self):
        name = "Resources/Icon.icns"
        self.assert_list_refused(
            lambda sealed: sealed["files2"][name].update(optional=True),
            f"Tiny.app/Contents/{name}: is sealed as optional",
        )

    def test_that_keeps_a_translation_from_being_left_out_is_refused(self):
        name = "Resources/en.lproj/Localizable.strings"
        self.assert_list_refused(
            lambda sealed: sealed["files2"][name].pop("optional"),
            f"Tiny.app/Contents/{name}: is not sealed as optional",
        )

    def test_with_another_hash_for_old_systems_is_refused(self):
        name = "Resources/Icon.icns"
        self.assert_list_refused(
            lambda sealed: sealed["files"].update({name: bytes(20)}),
            f"Tiny.app/Contents/{name}: is not what the seal has for old systems",
        )

    def test_with_a_file_that_never_was_is_refused(self):
        entry = {"hash2": bytes(32)}
        self.assert_list_refused(
            lambda sealed: sealed["files2"].update({"Resources/None.icns": entry}),
            "Tiny.app/Contents/Resources/None.icns: was sealed and is missing",
        )

    def test_with_another_requirement_of_nested_code_is_refused(self):
        for change in ({"requirement": 'identifier "other"'}, {"cdhash": bytes(20)}):
            self.assert_list_refused(
                lambda sealed, change=change: sealed["files2"]["MacOS/other"].update(change),
                f"{OTHER_CODE}: has another seal than the one that was sealed with the bundle",
            )


class Signature(WrongSeal):
    def seal_with(self, change):
        right = signature.sign

        def wrong(half, identifier, information, sealed):
            return right(half, *change(identifier, information, sealed))

        with mock.patch.object(signature, "sign", wrong):
            self.seal(self.app)

    def test_that_does_not_cover_the_information_is_refused(self):
        self.seal_with(lambda identifier, information, sealed: (identifier, b"", sealed))
        self.assert_refused(
            self.app, f"Tiny.app/Contents/Info.plist: is not the one that was sealed with {HALF}"
        )

    def test_that_does_not_cover_the_resources_is_refused(self):
        self.seal_with(lambda identifier, information, sealed: (identifier, information, b""))
        self.assert_refused(self.app, f"{LIST}: is not the one that was sealed with {HALF}")

    def test_of_nested_code_that_covers_what_is_not_there_is_refused(self):
        self.seal_with(lambda identifier, information, sealed: (identifier, information or b"some", sealed))
        self.assert_refused(self.app, f"{OTHER_CODE}: is not the one that was sealed with {OTHER_CODE}")


if __name__ == "__main__":
    unittest.main()
