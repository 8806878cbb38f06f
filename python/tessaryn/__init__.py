"""Tessaryn's laboratory: what happens to a player who plays a betting system for an evening.

    import tessaryn
    result = tessaryn.run(bets="passline=10", bankroll=300, win_goal=200, sessions=100_000)
    line = result.systems[0]
    line.ruined["p"], line.net[:3], sum(line.luck) / len(line)
"""

import json
import os

from . import _tessaryn

__all__ = ["run", "Result", "System"]

_FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "")


class System:
    """One system: its figures, and a column of each measure with a value for every session, in their order.

    The columns are memory views, which numpy.asarray takes without a copy: net, handle, max_drawdown, highest, luck and
    price in dollars, adjusted (net less luck), rolls, hands, and ruined, goal, limit, stopped as 0 or 1.
    """

    def __init__(self, figures, columns):
        self.name = figures["name"]
        self.parameters = figures["parameters"]
        self.figures = figures
        self.columns = columns
        for name, values in columns.items():
            setattr(self, name, values)

    def __len__(self):
        return len(self.columns["net"])

    def __repr__(self):
        mean, (low, high) = self.figures["net"]["mean"], self.figures["net"]["ci95"]
        return f"<{self.name}: mean net {mean:.2f} ({low:.2f} to {high:.2f})>"


class Result:
    """What came of an experiment. figures is the object that "tessaryn-cli lab --json" prints, report a page of HTML."""

    def __init__(self, figures, columns, report):
        self.figures = figures
        self.sessions = figures["sessions"]
        self.seed = figures["seed"]
        self.comparisons = figures.get("comparisons", [])
        self.systems = [System(*pair) for pair in zip(figures["systems"], columns)]
        self.report = report

    def __repr__(self):
        return f"<{self.sessions} sessions: {self.systems}>"


def _text(value):
    if isinstance(value, bool):
        return "on" if value else "off"
    if isinstance(value, (list, tuple, range)):
        return ",".join(_text(one) for one in value)
    return os.fspath(value) if isinstance(value, os.PathLike) else str(value)


def _texts(name, value):
    """The values of an option, each for a word of its own."""
    if isinstance(value, dict):
        pairs = [f"{key}={_text(one)}" for key, one in value.items()]
        return [",".join(pairs)] if name == "bets" else pairs
    if isinstance(value, (list, tuple)):
        return [text for one in value for text in _texts(name, one)]
    return [_text(value)]


def run(*, progress=None, **options):
    """Plays an experiment; options are those of "tessaryn-cli lab", with "_" for "-".

    script, bets and set may be lists. bets, set, stack and vary may be dicts:
    bets={"passline": 10, "odds": 20}, stack={1: range(5, 55, 5)}, vary={"OddsCalcMethod": [1, 2, 3]}.
    progress(sessions, target) is called several times a second. Ctrl-C ends the run, which goes on with resume=
    if it was begun with out=. Raises ValueError for an option that is wrong, RuntimeError for what it leads to;
    both name it.
    """
    words = []
    for name, value in options.items():
        if value is None:
            continue
        for text in _texts(name, value):
            words += ["--" + name.replace("_", "-") + "=" + text]
    figures, columns, report = _tessaryn.run(words, _FOLDER, progress)
    return Result(json.loads(figures), columns, report)
