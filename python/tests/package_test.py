"""The package as its users have it: package_test.py FOLDER_OF_THE_PACKAGE TESSARYN_CLI. 77 where it isn't built."""

import csv
import doctest
import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import threading
import unittest

FOLDER, CLI = sys.argv[1:3]
sys.path.insert(0, FOLDER)
if not list(pathlib.Path(FOLDER, "tessaryn").glob("_tessaryn*")):
    print("Skipped: the package isn't built (--target tessaryn-python)")
    sys.exit(77)
import tessaryn

DOCS = pathlib.Path(__file__).resolve().parents[2] / "docs" / "python.md"
ASKED = dict(bets=[{"passline": 10, "passlineodds": 20}, "49=5"], sessions=500, rolls=60, bankroll=80, set="ShooterBetRule=0")


def command_line(*more):
    words = ["--bets=passline=10,passlineodds=20", "--bets=49=5", "--sessions=500", "--rolls=60", "--bankroll=80"]
    words += ["--set=ShooterBetRule=0", "--json", *more]
    return json.loads(subprocess.run([CLI, "lab", *words], check=True, capture_output=True).stdout)


class Package(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def test_the_page_tells_the_truth(self):
        failed, tried = doctest.testfile(str(DOCS), module_relative=False, encoding="utf-8")
        self.assertGreater(tried, 8)
        self.assertEqual(failed, 0)

    def test_brings_what_the_command_line_brings(self):
        result = tessaryn.run(**ASKED, csv=self.folder / "p.csv")
        self.assertEqual(result.figures, command_line(f"--csv={self.folder / 'c.csv'}"))
        self.assertEqual((self.folder / "p.csv").read_bytes(), (self.folder / "c.csv").read_bytes())
        with open(self.folder / "p.csv", newline="") as file:
            rows = list(csv.DictReader(file))
        for i, row in enumerate(rows):
            columns = result.systems[i % 2].columns
            for name, column in (("net", "net"), ("maxDrawdown", "max_drawdown"), ("price", "price"), ("hands", "hands"),
                                 ("ruined", "ruined")):
                self.assertAlmostEqual(float(row[name]), columns[column][i // 2], places=6)
        self.assertIn("<html", result.report)

    def test_sweeps_by_dictionaries(self):
        script = self.folder / "a.bet"
        script.write_text("if passline = 0 then bet cs1 on passline endif\n")
        result = tessaryn.run(script=script, stack={1: range(5, 20, 5)}, vary={"OddsCalcMethod": [1, 2]}, sessions=20)
        self.assertEqual(len(result.systems), 6)
        self.assertEqual(result.systems[0].parameters["CheckStack 1"], 5)

    def test_errors_name_the_option(self):
        for kind, named, options in (
            (ValueError, "--win-goal x", dict(bets="43=5", win_goal="x")),
            (ValueError, "--color", dict(bets="43=5", color="red")),
            (ValueError, "--sessions", dict(bets="43=5", sessions=0)),
            (ValueError, "nothing to play", dict()),
            (ValueError, "--find", dict(bets="43=5", find="bankroll")),
            (RuntimeError, "none.bet", dict(script="none.bet")),
            (RuntimeError, "--csv /nowhere/x.csv", dict(bets="43=5", csv="/nowhere/x.csv")),
        ):
            with self.assertRaisesRegex(kind, named):
                tessaryn.run(**options)
        (self.folder / "bad.bet").write_text("bet on on\n")
        with self.assertRaisesRegex(RuntimeError, "bad.bet:1"):
            tessaryn.run(script=self.folder / "bad.bet")

    def test_ctrl_c_ends_it_and_resume_goes_on(self):
        lab = self.folder / "long.lab"
        asked = dict(bets="passline=10", rolls=100, out=lab)
        turns = []

        def interrupt():
            while not (lab.exists() and len(turns) > 2):
                turns.append(1)  # Python runs meanwhile
                threading.Event().wait(0.05)
            os.kill(os.getpid(), signal.SIGINT)

        other = threading.Thread(target=interrupt)
        other.start()
        with self.assertRaises(KeyboardInterrupt):
            tessaryn.run(**asked, sessions=900_000_000)
        other.join()
        self.assertTrue(lab.exists())
        seen = []

        def stop(sessions, target):
            seen.append((sessions, target))
            raise LookupError("enough")

        with self.assertRaises(LookupError):
            tessaryn.run(resume=lab, progress=stop)
        self.assertEqual(seen[0][1], 900_000_000)
        self.assertEqual(len(seen), 1)

    def test_columns_are_arrays_for_numpy(self):
        line = tessaryn.run(**ASKED).systems[0]
        self.assertEqual((line.net.format, line.rolls.format, line.ruined.format), ("d", "q", "B"))
        try:
            import numpy
        except ImportError:
            self.skipTest("numpy isn't installed")
        net = numpy.asarray(line.net)
        self.assertEqual(net.dtype, numpy.float64)
        self.assertAlmostEqual(net.mean(), line.figures["net"]["mean"])
        self.assertAlmostEqual(net.std(ddof=1), line.figures["net"]["stdDev"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
