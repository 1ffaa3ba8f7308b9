"""Apple's notary: what it is sent, what it answers, and the ticket that is stapled to what it accepted."""

import json
import pathlib

from .steps import Command, Failure, Work

ACCEPTED = "Accepted"
# How Gatekeeper looks at an application that is opened, and at a disk image.
APPLICATION = ("--type", "execute")
IMAGE = ("--type", "open", "--context", "context:primary-signature")


class Notary:
    def __init__(self, keychain_profile, log):
        """Writes why it refused something to `log`."""
        self.profile = ["--keychain-profile", keychain_profile]
        self.log = pathlib.Path(log)
        self._answer = {}

    def steps(self, submitted, stapled, kind):
        """A ticket is stapled to a bundle or an image; the first is submitted in an archive."""
        submit = ["xcrun", "notarytool", "submit", submitted, *self.profile, "--wait"]
        return [
            # Its exit status is not asked: there are versions that end with 0 after a refusal.
            Command(*submit, "--output-format", "json", judge=self._take_answer, judges_failures=True),
            Work(
                f"require that {submitted} was accepted; if not, print xcrun notarytool log, keep it in "
                f"{self.log} and end",
                lambda: self._require_accepted(submitted),
            ),
            Command("xcrun", "stapler", "staple", stapled),
            Command("xcrun", "stapler", "validate", stapled),
            Command("spctl", "--assess", *kind, "--verbose=4", stapled),
        ]

    def _take_answer(self, output):
        try:
            answer = json.loads(output[output.find("{") :])
        except ValueError:
            answer = None
        if not isinstance(answer, dict) or not {"id", "status"} <= answer.keys():
            raise Failure(
                f"notarytool gave no id and status, but {' '.join(output.split())!r}; is there a network, "
                f"and does the keychain have the profile {self.profile[1]!r}?"
            )
        self._answer = answer

    def _require_accepted(self, submitted):
        if self._answer["status"] == ACCEPTED:
            return
        status, submission = self._answer["status"], self._answer["id"]
        refusal = f"the notary did not accept {submitted}: {status}, submission {submission}"
        log = Command("xcrun", "notarytool", "log", submission, *self.profile, judge=self._keep_log)
        try:
            log.run()
        except Failure as failure:
            raise Failure(f"{refusal}; its log: {failure}") from None
        raise Failure(f"{refusal}; why is in {self.log}")

    def _keep_log(self, output):
        print(output, flush=True)
        self.log.write_text(output, encoding="utf-8")
