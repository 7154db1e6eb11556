#!/usr/bin/env python3
"""count_tests.py BUILD_TREE: prints "passed failed skipped" of the last ctest run there.

ctest's report (junit.xml) says how each program and script ended; a GoogleTest program's own report
(results/NAME.xml) says how its cases did. Of programs named in the folder cases/ the cases are counted, and
one that leaves no report has failed; of all other tests each is one.
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


def counts_of(test, tree):
    """What a test that ran counts for, and what is wrong with its report if anything."""
    succeeded = test.get("status") == "run"
    if not os.path.exists(os.path.join(tree, "cases", test.get("name"))):
        return ((1, 0, 0) if succeeded else (0, 1, 0)), None
    try:
        counts = case_counts(os.path.join(tree, "results", test.get("name") + ".xml"))
    except (OSError, ET.ParseError) as error:
        return (0, 1, 0), f"no report of its cases: {error}"
    # A program that failed outside its cases (a crash, a leak, the time limit) is a failure of its own.
    if not succeeded and counts[1] == 0:
        counts = (counts[0], 1, counts[2])
    return counts, None


def main():
    tree = sys.argv[1]
    preset = os.path.basename(tree)
    totals = [0, 0, 0]
    for test in ET.parse(os.path.join(tree, "junit.xml")).iter("testcase"):
        name = test.get("name")
        status = test.get("status")
        output = (test.findtext("system-out") or "").strip().splitlines()
        if status in ("run", "fail"):
            counts, complaint = counts_of(test, tree)
            if complaint:
                status = "fail"
                output.append(complaint)
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
