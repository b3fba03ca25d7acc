"""Measures what the conversion of character sets costs a read; bench/run calls it."""

import argparse
import os
import subprocess
import sys

MOST_ADDED, LEAST_SPEED = 0.03, 0.8

# What is read: the file, and the value of chkDecodeCharset.
AS_IT_STANDS, ANSI, UTF8 = "ANSI, not converted", "ANSI", "UTF-8"


def processor_seconds(command):
    """Of one run: what other programs do at the time matters less to it than to the clock."""
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"bench: status {status} from: {' '.join(command)}")
    return usage.ru_utime + usage.ru_stime


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--programs", required=True, help="folder of the built programs")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("ansi", metavar="ANSI-FILE")
    parser.add_argument("utf8", metavar="UTF-8-FILE", help="the same text in UTF-8")
    arguments = parser.parse_args()
    client = os.path.join(arguments.programs, "swiftroll-cli")
    runs = {AS_IT_STANDS: (arguments.ansi, "0"), ANSI: (arguments.ansi, "1"), UTF8: (arguments.utf8, "1")}
    seconds = {name: [] for name in runs}
    for _ in range(arguments.rounds):
        for name, (file, decodes) in runs.items():
            seconds[name].append(processor_seconds(
                [client, "tables", file, "-q", "-t", "lvwKinship", "--set", f"chkDecodeCharset={decodes}"]))
    best = {name: min(times) for name, times in seconds.items()}
    for name, time in best.items():
        print(f"  {name:22}{time:9.3f} s of the processor, least of {arguments.rounds}")
    added, speed = best[ANSI] / best[AS_IT_STANDS] - 1, best[ANSI] / best[UTF8]
    print(f"  conversion adds to ANSI {added:+.3f} {'' if added <= MOST_ADDED else '* '}(<= {MOST_ADDED})")
    print(f"  UTF-8, of the speed of ANSI {speed:.2f} {'' if speed >= LEAST_SPEED else '* '}(>= {LEAST_SPEED})")


if __name__ == "__main__":
    main()
