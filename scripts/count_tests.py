#!/usr/bin/env python3
"""count_tests.py BUILD_TREE: prints "passed failed skipped" of the last ctest run there.

ctest's report (junit.xml) says how each program and script ended; a GoogleTest program's own report
(results/NAME.xml) says how its cases did. Cases are counted where there is such a report, programs else.
Failures, and the reasons of skips, go to standard error, a failing program's last lines with them.
"""
import os
import sys
import xml.etree.ElementTree as ET

LAST_LINES = 25


def case_counts(report):
    passed = failed = skipped = 0
    for case in ET.parse(report).iter("testcase"):
        if case.find("failure") is not None:
            failed += 1
        elif case.get("result") in ("skipped", "suppressed"):
            skipped += 1
        else:
            passed += 1
    return passed, failed, skipped


def main():
    tree = sys.argv[1]
    preset = os.path.basename(tree)
    totals = [0, 0, 0]
    for test in ET.parse(os.path.join(tree, "junit.xml")).iter("testcase"):
        name = test.get("name")
        status = test.get("status")
        output = (test.findtext("system-out") or "").strip().splitlines()
        report = os.path.join(tree, "results", name + ".xml")
        counts = (0, 0, 0)
        if status == "run" or status == "fail":
            if os.path.exists(report):
                try:
                    counts = case_counts(report)
                except ET.ParseError:
                    counts = (0, 0, 0)
            # A program that failed outside its cases (a crash, a leak, the time limit) is a failure of its own.
            if status == "fail" and counts[1] == 0:
                counts = (counts[0], 1, counts[2])
            elif status == "run" and sum(counts) == 0 and not os.path.exists(report):
                counts = (1, 0, 0)
        else:
            counts = (0, 0, 1)
            print(f"skipped {preset}/{name}: {output[-1] if output else status}", file=sys.stderr)
        if status == "fail":
            print(f"FAILED  {preset}/{name}", file=sys.stderr)
            for line in output[-LAST_LINES:]:
                print("    " + line, file=sys.stderr)
        totals = [a + b for a, b in zip(totals, counts)]
    print(*totals)


main()
