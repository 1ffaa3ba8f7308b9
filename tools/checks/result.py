"""What a check returns."""

from dataclasses import dataclass, field


@dataclass(frozen=True, order=True)
class Finding:
    path: str  # relative to the repository
    line: int  # counted from 1
    message: str  # what is wrong and what to do, in one line

    def __str__(self):
        return f"{self.path}:{self.line}: {self.message}"


@dataclass
class Result:
    examined: str  # what was looked at, as in "12 files": a check that saw nothing says so
    findings: list[Finding] = field(default_factory=list)
