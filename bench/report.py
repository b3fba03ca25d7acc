"""Measures the program against the baseline on some files and prints the figures; bench/run calls it."""

import argparse
import math
import os
import statistics
import subprocess
import sys
import tempfile
from dataclasses import dataclass

BASELINE, READING, TABLES, RELEVE = "baseline", "reading", "table lvwIn", "releve"
CHECK = "controle"

# Of reading against the baseline, of releve and check over reading, of memory, of growth.
LEAST_SPEED, GOOD_SPEED = 1 / 3, 1 / 2
MOST_ADDED = 0.5
MOST_MEMORY = 3.0
MOST_CHECK_MEMORY = 1 / 3
MOST_EXPONENT = 1.1

@dataclass
class Run:
    seconds: float
    kilobytes: int


@dataclass
class Sample:
    """All runs on one file; the n-th runs of all measures were made one after the other."""

    individuals: int
    size: int
    runs: dict[str, list[Run]]

    def seconds(self, measure):
        return statistics.median(run.seconds for run in self.runs[measure])

    def peak(self, measure):
        return statistics.median(run.kilobytes for run in self.runs[measure]) * 1024

    def memory_per_byte(self, measure):
        return self.peak(measure) / self.size

    def paired(self, figure, measure, other):
        """Pair by pair, since the machine may drift from one round to the next."""
        pairs = zip(self.runs[measure], self.runs[other])
        return statistics.median(figure(one.seconds, two.seconds) for one, two in pairs)

    def speed_against_baseline(self):
        return self.paired(lambda reading, baseline: baseline / reading, READING, BASELINE)

    def added_by(self, measure):
        return self.paired(lambda both, reading: both / reading - 1, measure, READING)

    def memory_added_by(self, measure):
        return self.peak(measure) / self.peak(READING) - 1


def commands(programs, file, page):
    client = os.path.join(programs, "swiftroll-cli")
    return {
        BASELINE: [os.path.join(programs, "baseline"), file],
        READING: [client, "tables", file, "-q", "-t", "lvwKinship"],
        TABLES: [client, "tables", file, "-q"],
        RELEVE: [client, "releve", file, "-q", "-f", "-o", page],
        CHECK: [client, "controle", file, "-q", "-f", "-o", page],
    }


def run_once(programs, command):
    done = subprocess.run(
        [os.path.join(programs, "measure"), *command],
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
        errors="replace", check=False)
    # The check of a file ends with 1 when it found errors in it.
    allowed = (0, 1) if CHECK in command else (0,)
    if done.returncode not in allowed:
        sys.exit(f"{done.stderr}bench: exit code {done.returncode} from: {' '.join(command)}")
    seconds, kilobytes = done.stdout.split()
    return Run(float(seconds), int(kilobytes))


def take_sample(programs, individuals, file, rounds, folder):
    to_run = commands(programs, file, os.path.join(folder, "releve.html"))
    for command in to_run.values():  # the warm-up
        run_once(programs, command)
    runs = {measure: [] for measure in to_run}
    for _ in range(rounds):
        for measure, command in to_run.items():
            runs[measure].append(run_once(programs, command))
    return Sample(individuals, os.path.getsize(file), runs)


def grouped(number):
    return f"{number:,.0f}".replace(",", " ")


def print_sample(sample):
    rounds = len(sample.runs[BASELINE])
    print(f"{grouped(sample.individuals)} individuals, {sample.size / 1e6:.1f} MB "
          f"({sample.size / sample.individuals:.0f} bytes each), median of {rounds}")
    print(f"  {'':12}{'seconds':>10}{'MB/s':>9}{'individuals/s':>16}{'peak MB':>10}{'memory/file':>13}")
    beside = {
        READING: f"{sample.speed_against_baseline():.2f} of the baseline's MB/s",
        RELEVE: f"adds {sample.added_by(RELEVE):.2f} of reading",
        CHECK: f"adds {sample.added_by(CHECK):.2f} of reading, {sample.memory_added_by(CHECK):.2f} of its memory",
    }
    for measure in sample.runs:
        seconds = sample.seconds(measure)
        line = (f"  {measure:12}{seconds:10.4f}{sample.size / seconds / 1e6:9.1f}"
                f"{grouped(sample.individuals / seconds):>16}{sample.peak(measure) / 1e6:10.1f}"
                f"{sample.memory_per_byte(measure):13.2f}   {beside.get(measure, '')}")
        print(line.rstrip())
    print()


def exponent(smaller, larger, measure):
    times = larger.seconds(measure) / smaller.seconds(measure)
    return math.log10(times) / math.log10(larger.size / smaller.size)


def marked(figure, is_met):
    return f"{figure:.2f}{' ' if is_met(figure) else '*'}"


def print_target(name, figures, is_met, target):
    cells = "".join(f"{marked(figure, is_met):>11}" for figure in figures)
    print(f"  {name:36}{cells:33}   {target}")


def print_targets(samples):
    sizes = "".join(f"{grouped(sample.individuals):>10} " for sample in samples)
    print(f"  {'Targets (* where one is missed)':36}{sizes:33}   target")
    print_target("reading, of the baseline's MB/s", [s.speed_against_baseline() for s in samples],
                 lambda figure: figure >= LEAST_SPEED,
                 f">= {LEAST_SPEED:.2f}, better {GOOD_SPEED:.2f}")
    for measure in (RELEVE, CHECK):
        print_target(f"{measure}, added to reading", [s.added_by(measure) for s in samples],
                     lambda figure: figure < MOST_ADDED, f"< {MOST_ADDED:.2f} of reading")
    print_target("memory of controle, added to reading", [s.memory_added_by(CHECK) for s in samples],
                 lambda figure: figure < MOST_CHECK_MEMORY, f"< {MOST_CHECK_MEMORY:.2f} of reading")
    for measure in (READING, TABLES):
        print_target(f"memory of {measure}", [s.memory_per_byte(measure) for s in samples],
                     lambda figure: figure <= MOST_MEMORY, f"<= {MOST_MEMORY:.1f} bytes per byte of file")
    if len(samples) >= 2:
        smaller, larger = samples[-2:]
        print_target("exponent of reading time", [exponent(smaller, larger, READING)],
                     lambda figure: figure <= MOST_EXPONENT,
                     f"<= {MOST_EXPONENT:.1f}, {grouped(smaller.individuals)} to "
                     f"{grouped(larger.individuals)} individuals")
        print(f"  (exponent of the baseline's time: {exponent(smaller, larger, BASELINE):.2f})")


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--programs", required=True, help="folder of the built programs")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("files", nargs="+", metavar="INDIVIDUALS=FILE")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    samples = []
    with tempfile.TemporaryDirectory(prefix="swiftroll-bench-") as folder:
        for item in sorted(arguments.files, key=lambda item: int(item.split("=", 1)[0])):
            individuals, file = item.split("=", 1)
            sample = take_sample(arguments.programs, int(individuals), file, arguments.rounds, folder)
            print_sample(sample)
            sys.stdout.flush()
            samples.append(sample)
    print_targets(samples)


if __name__ == "__main__":
    main()
