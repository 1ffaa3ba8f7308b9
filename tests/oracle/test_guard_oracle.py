"""Tests of guard_oracle.py. Every expected number is worked out by hand."""

import contextlib
import io
import os
import subprocess
import sys
import tempfile
import unittest

import guard_oracle

# The primary display and, to its right and level with it at the bottom, a second one.
TWO_DISPLAYS = "1920x1080+0+0,1280x800+1920+280"


def arrival(point, displays=TWO_DISPLAYS, pin=1, guard=True, margin=4.0):
    frames = guard_oracle.parse_displays(displays)
    return guard_oracle.delivered(*point, frames, pin - 1, guard, margin)


class TheRule(unittest.TestCase):
    def test_moves_a_point_in_the_band_up_to_its_edge(self):
        # The bottom edge is at 1080; 1080 - 1 - 4 = 1075.
        self.assertEqual(arrival((2000.0, 1078.0)), (2000.0, 1075.0))
        self.assertEqual(arrival((2000.0, 1079.75)), (2000.0, 1075.0))
        self.assertEqual(arrival((2000.0, 1075.5)), (2000.0, 1075.0))

    def test_leaves_the_edge_of_the_band_alone(self):
        self.assertEqual(arrival((2000.0, 1075.0)), (2000.0, 1075.0))
        self.assertEqual(arrival((2000.0, 280.0)), (2000.0, 280.0))

    def test_leaves_the_pinned_display_alone(self):
        self.assertEqual(arrival((100.0, 1079.0)), (100.0, 1079.0))
        self.assertEqual(arrival((1919.5, 1079.0)), (1919.5, 1079.0))
        self.assertEqual(arrival((2000.0, 1079.0), pin=2), (2000.0, 1079.0))

    def test_guards_the_primary_when_another_is_pinned(self):
        self.assertEqual(arrival((100.0, 1079.0), pin=2), (100.0, 1075.0))

    def test_includes_the_minimum_edges_and_excludes_the_maximum_ones(self):
        self.assertEqual(arrival((1920.0, 1079.0)), (1920.0, 1075.0))
        self.assertEqual(arrival((3199.5, 1079.0)), (3199.5, 1075.0))
        self.assertEqual(arrival((3200.0, 1079.0)), (3200.0, 1079.0))
        self.assertEqual(arrival((2000.0, 1080.0)), (2000.0, 1080.0))

    def test_leaves_a_point_on_no_display_alone(self):
        self.assertEqual(arrival((2000.0, 100.0)), (2000.0, 100.0))
        self.assertEqual(arrival((-1.0, 1079.0)), (-1.0, 1079.0))

    def test_leaves_everything_alone_when_off(self):
        self.assertEqual(arrival((2000.0, 1078.0), guard=False), (2000.0, 1078.0))

    def test_leaves_everything_alone_with_one_display(self):
        self.assertEqual(arrival((100.0, 1079.0), displays="1920x1080+0+0"), (100.0, 1079.0))

    def test_takes_the_default_for_a_margin_that_is_not_above_zero(self):
        for margin in (0.0, -0.0, -3.0):
            self.assertEqual(arrival((2000.0, 1078.0), margin=margin), (2000.0, 1075.0))
            self.assertEqual(arrival((2000.0, 1075.0), margin=margin), (2000.0, 1075.0))

    def test_uses_another_margin(self):
        # 1080 - 1 - 10 = 1069 and 1080 - 1 - 12.5 = 1066.5.
        self.assertEqual(arrival((2000.0, 1069.5), margin=10.0), (2000.0, 1069.0))
        self.assertEqual(arrival((2000.0, 1069.0), margin=10.0), (2000.0, 1069.0))
        self.assertEqual(arrival((2000.0, 1067.0), margin=12.5), (2000.0, 1066.5))
        self.assertEqual(arrival((2000.0, 1066.5), margin=12.5), (2000.0, 1066.5))
        self.assertEqual(arrival((2000.0, 1079.5), margin=0.25), (2000.0, 1078.75))

    def test_holds_the_pointer_below_the_top_of_a_tiny_display(self):
        # From 100 to 104: 104 - 1 - 4 = 99 lies above the display, 100 + 1 = 101 does not.
        tiny = "100x100+0+0,50x4+100+100"
        self.assertEqual(arrival((120.0, 102.0), tiny), (120.0, 101.0))
        # Even a point above the limit is held there, because it lies below 99.
        self.assertEqual(arrival((120.0, 100.0), tiny), (120.0, 101.0))
        # With a height of 6 both limits meet: 106 - 1 - 4 = 101 = 100 + 1.
        meeting = "100x100+0+0,50x6+100+100"
        self.assertEqual(arrival((120.0, 105.0), meeting), (120.0, 101.0))
        self.assertEqual(arrival((120.0, 101.0), meeting), (120.0, 101.0))
        # With a height of 5.5 the band starts at 105.5 - 1 - 4 = 100.5, less than a point below the top.
        narrow = "100x100+0+0,50x5.5+100+100"
        self.assertEqual(arrival((120.0, 100.25), narrow), (120.0, 100.25))
        self.assertEqual(arrival((120.0, 100.5), narrow), (120.0, 100.5))
        self.assertEqual(arrival((120.0, 100.75), narrow), (120.0, 101.0))
        # A display of half a point sends the pointer beyond its own bottom edge.
        self.assertEqual(arrival((120.0, 100.25), "100x100+0+0,50x0.5+100+100"), (120.0, 101.0))

    def test_holds_the_pointer_below_the_top_when_the_margin_is_larger_than_the_display(self):
        self.assertEqual(arrival((2000.0, 281.0), margin=5000.0), (2000.0, 281.0))
        self.assertEqual(arrival((2000.0, 280.0), margin=5000.0), (2000.0, 281.0))
        self.assertEqual(arrival((2000.0, 700.0), margin=5000.0), (2000.0, 281.0))

    def test_works_above_and_left_of_the_primary(self):
        # From -1080 to 0: 0 - 1 - 4 = -5.
        self.assertEqual(arrival((10.0, -2.0), "1920x1080+0+0,1920x1080+0-1080"), (10.0, -5.0))
        # From -458.5 to 982: 982 - 5 = 977.
        displays = "1512x982+0+0,1920x1080-1920+0,2560x1440.5+1512-458.5"
        self.assertEqual(arrival((1600.0, 981.0), displays), (1600.0, 977.0))
        self.assertEqual(arrival((-5.0, 1079.0), displays), (-5.0, 1075.0))

    def test_lets_the_first_display_decide_where_two_overlap(self):
        overlapping = "100x100+0+0,100x100+50+50"
        self.assertEqual(arrival((60.0, 99.0), overlapping, pin=1), (60.0, 99.0))
        self.assertEqual(arrival((60.0, 99.0), overlapping, pin=2), (60.0, 95.0))

    def test_keeps_what_the_trip_through_appkit_does_to_the_last_digit(self):
        # As doubles, 1.1 - 0.3 - 0.1 is 0.7000000000000001,
        # and 1.1 - 0.7000000000000001 - 0.1 is 0.30000000000000004.
        moved = (5.0, 0.30000000000000004, 9.0, 0.1)
        self.assertEqual(guard_oracle.there_and_back((5.0, 0.3, 9.0, 0.1), 1.1), moved)
        self.assertEqual(guard_oracle.there_and_back((0.0, 0.0, 9.0, 1.1), 1.1), (0.0, 0.0, 9.0, 1.1))
        self.assertEqual(
            guard_oracle.parse_displays("9x1.1+0+0,9x0.1+9+0.3")[1], (9.0, 0.30000000000000004, 9.0, 0.1)
        )


class TheDisplays(unittest.TestCase):
    def test_are_read_in_order(self):
        self.assertEqual(
            guard_oracle.parse_displays("1512x982+0+0,2560x1440.5+1512-458.5"),
            [(0.0, 0.0, 1512.0, 982.0), (1512.0, -458.5, 2560.0, 1440.5)],
        )

    def test_are_refused_when_they_make_no_sense(self):
        nonsense = ("", "abc", "10x10", "1e3x10+0+0", "infx10+0+0", "10x10+0+0\n")
        for text in nonsense + ("10x10+0+0,", "10x10+5+0", "0x10+0+0"):
            with self.subTest(text), self.assertRaises(guard_oracle.UsageError):
                guard_oracle.parse_displays(text)


class TheShortestText(unittest.TestCase):
    def test_is_what_to_chars_prints(self):
        for value, text in (
            (0.0, "0"),
            (-0.0, "-0"),
            (1.0, "1"),
            (1075.0, "1075"),
            (-458.5, "-458.5"),
            (0.1, "0.1"),
            (0.30000000000000004, "0.30000000000000004"),
            (0.001, "0.001"),
            (0.0001, "1e-04"),
            (0.00012, "0.00012"),
            (0.000123, "0.000123"),
            (1e-05, "1e-05"),
            (1.25e-07, "1.25e-07"),
            (100000.0, "1e+05"),
            (120000.0, "120000"),
            (1000000.0, "1e+06"),
            (2.5e20, "2.5e+20"),
            (1e-300, "1e-300"),
            (5e-324, "5e-324"),
        ):
            self.assertEqual(guard_oracle.shortest_text(value), text)

    def test_reads_back_as_the_same_number(self):
        value = 1.0
        for step in range(2000):
            value = value * 1.7 + step / 7 if value < 1e6 else value / 1e9
            self.assertEqual(float(guard_oracle.shortest_text(value)), value)


class TheCommand(unittest.TestCase):
    OPTIONS = ("--displays", TWO_DISPLAYS, "--pin", "1", "--guard", "on", "--margin", "4")
    GOOD = b"0,5,100,1079,100,1079\n1,6,2000,1078,2000,1075\n2,27,2000.5,-7,2000.5,-7\n"

    def run_on(self, content, options=OPTIONS):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "emitted.csv")
            with open(path, "wb") as file:
                file.write(content)
            output = io.StringIO()
            status = guard_oracle.main([path, *options], output, output)
            return status, output.getvalue().replace(path, "emitted.csv").rstrip("\n")

    def assert_disagreement(self, content, message, options=OPTIONS):
        self.assertEqual(self.run_on(content, options), (1, f"emitted.csv: {message}"))

    def test_counts_the_lines_that_agree(self):
        self.assertEqual(self.run_on(self.GOOD), (0, "3 lines agree"))

    def test_takes_a_negative_margin_and_a_missing_one(self):
        for margin in (("--margin", "-3"), ("--margin=-3",), ("--margin", "0"), ()):
            self.assertEqual(self.run_on(self.GOOD, self.OPTIONS[:6] + margin), (0, "3 lines agree"))
        self.assertEqual(self.run_on(self.GOOD, self.OPTIONS[:6] + ("--margin", "10"))[0], 1)

    def test_reports_the_first_line_that_disagrees(self):
        self.assert_disagreement(
            b"0,5,100,1079,100,1079\n1,5,2000,1078,2000,1074\n2,5,2000,1078,2000,1\n",
            "line 2: (2000, 1078) arrived at (2000, 1074), expected (2000, 1075)",
        )

    def test_reports_an_event_that_was_not_moved(self):
        self.assert_disagreement(
            b"0,5,2000,1078,2000,1078\n",
            "line 1: (2000, 1078) arrived at (2000, 1078), expected (2000, 1075)",
        )

    def test_reports_an_event_that_was_moved_without_need(self):
        self.assert_disagreement(
            b"0,5,2000,1075,2000,1074\n",
            "line 1: (2000, 1075) arrived at (2000, 1074), expected (2000, 1075)",
        )
        self.assert_disagreement(
            b"0,5,2000,1078,2001,1075\n",
            "line 1: (2000, 1078) arrived at (2001, 1075), expected (2000, 1075)",
        )

    def test_reports_a_difference_in_the_last_bit(self):
        self.assert_disagreement(
            b"0,5,2000,1078,2000,1075.0000000000002\n",
            "line 1: (2000, 1078) arrived at (2000, 1075.0000000000002), expected (2000, 1075)",
        )
        self.assert_disagreement(b"0,5,0,0,0,-0\n", "line 1: (0, 0) arrived at (0, -0), expected (0, 0)")

    def test_notices_when_the_guard_was_on_though_it_should_be_off(self):
        self.assert_disagreement(
            self.GOOD,
            "line 2: (2000, 1078) arrived at (2000, 1075), expected (2000, 1078)",
            ("--displays", TWO_DISPLAYS, "--pin", "1", "--guard", "off"),
        )

    def test_refuses_an_empty_file(self):
        self.assert_disagreement(b"", "line 1: expected an event, found an empty file")
        self.assert_disagreement(b"\n", "line 1: expected 6 columns, found 1")

    def test_refuses_a_file_that_is_cut(self):
        self.assert_disagreement(self.GOOD[:-1], "line 3: expected a line end, found the end of the file")
        self.assert_disagreement(self.GOOD[:30], "line 2: expected a line end, found the end of the file")

    def test_refuses_another_number_of_columns(self):
        self.assert_disagreement(b"0,5,1,2,1\n", "line 1: expected 6 columns, found 5")
        self.assert_disagreement(b"0,5,1,2,1,2,3\n", "line 1: expected 6 columns, found 7")

    def test_refuses_indices_out_of_order(self):
        self.assert_disagreement(b"1,5,1,2,1,2\n", "line 1: expected index 0, found '1'")
        self.assert_disagreement(b"0,5,1,2,1,2\n2,5,1,2,1,2\n", "line 2: expected index 1, found '2'")

    def test_refuses_other_event_types(self):
        for text in ("1", "05", "", "mouseMoved"):
            self.assert_disagreement(
                f"0,{text},1,2,1,2\n".encode(), f"line 1: expected type 5, 6, 7 or 27, found {text!r}"
            )

    def test_refuses_what_is_no_number(self):
        for text in ("", "abc", "nan", "inf", "+1", " 1", "1 ", "1_0", "0x1", ".5", "1.", "1\r"):
            self.assert_disagreement(
                f"0,5,1,2,1,{text}\n".encode(), f"line 1: expected a number for deliveredY, found {text!r}"
            )
        self.assert_disagreement(
            b"0,5,1e+999,2,1,2\n", "line 1: expected a finite number for x, found '1e+999'"
        )
        self.assert_disagreement("0,5,٣,2,1,2\n".encode(), "line 1: expected ASCII text")

    def test_refuses_text_that_is_not_the_shortest(self):
        longer = (("1.0", "1"), ("0.10000000000000001", "0.1"), ("01", "1"), ("100000", "1e+05"))
        for text, shortest in longer:
            self.assert_disagreement(
                f"0,5,{text},2,1,2\n".encode(),
                f"line 1: expected {shortest} for x, found {text!r}, which is not shortest",
            )

    def test_checks_the_number_of_lines_when_told(self):
        self.assertEqual(self.run_on(self.GOOD, self.OPTIONS + ("--lines", "3")), (0, "3 lines agree"))
        self.assert_disagreement(self.GOOD, "expected 4 lines, found 3", self.OPTIONS + ("--lines", "4"))

    def test_refuses_bad_usage(self):
        for displays, pin, message in (
            ("abc", "1", "display 1: expected WxH+X+Y, found 'abc'"),
            (TWO_DISPLAYS, "3", "--pin: expected a display from 1 to 2, found 3"),
            (TWO_DISPLAYS, "0", "--pin: expected a display from 1 to 2, found 0"),
        ):
            options = ("--displays", displays, "--pin", pin, "--guard", "on")
            self.assertEqual(self.run_on(self.GOOD, options), (2, f"guard_oracle.py: {message}"))

    def test_refuses_options_that_are_missing_or_make_no_sense(self):
        base = ["--displays", TWO_DISPLAYS, "--pin", "1", "--guard", "on"]
        for options in (
            base[2:],
            base[:2] + base[4:],
            base[:4],
            base[:5] + ["maybe"],
            base + ["--margin", "nan"],
            base + ["--margin", "wide"],
            base + ["--nonsense"],
        ):
            with self.subTest(options), contextlib.redirect_stderr(io.StringIO()):
                with self.assertRaises(SystemExit) as ending:
                    guard_oracle.main(["emitted.csv", *options])
                self.assertEqual(ending.exception.code, 2)

    def test_refuses_a_file_that_cannot_be_read(self):
        output = io.StringIO()
        self.assertEqual(guard_oracle.main(["/nonexistent/emitted.csv", *self.OPTIONS], output, output), 2)
        self.assertIn("No such file or directory", output.getvalue())

    def test_gives_its_status_to_the_shell(self):
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "guard_oracle.py")
        for content, status in ((self.GOOD, 0), (b"0,5,2000,1078,2000,1078\n", 1)):
            with tempfile.NamedTemporaryFile() as file:
                file.write(content)
                file.flush()
                run = subprocess.run(
                    [sys.executable, "-B", script, file.name, *self.OPTIONS], capture_output=True, check=False
                )
                self.assertEqual(run.returncode, status)


if __name__ == "__main__":
    unittest.main()
