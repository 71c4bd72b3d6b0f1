"""Every fault of the emulated device, over every transport, with every kind of operation; and the
device unplugged in the middle. Prints a matrix of exit codes and what was not as promised."""

import concurrent.futures
import pathlib
import sys
import tempfile
import time
import traceback

import operations
from programs import Hartframe, Served, Wrong, check

TRANSPORTS = ["udp", "tcp", "pty"]
OPERATIONS = {"upload": operations.upload, "write": operations.write, "method": operations.method}
WORKERS = 8  # most of the time is spent waiting
# What stands for the names that the program's list of faults has.
VALUES = {"MILLISECONDS": "40", "FLAGS": "0x88", "CODE": "7", "BITS": "0x10"}
# With these an operation does what it should; any other that lasts has to be told.
HARMLESS = {"none", "latency", "device-status", "overlong"}
# Nobody can know that the bytes are others than the device has sent.
UNNOTICED = {"corrupt"}
# What a method does not hear of: its variables have the values that have come.
UNHEARD = {"method": {"truncated"}}
COUNT = 2  # as often as hartframe asks with one retry
# Requests that are spared: none, finding the device, finding it and the first readings.
SPARED = [0, 1, 5]


class Cell:
    """One run: where, what, and how it ended."""

    def __init__(self, row, column, run):
        self.row = row
        self.column = column
        self.run = run
        self.shown = ""
        self.wrong = ""

    def __call__(self, hartframe, folder):
        folder.mkdir()
        began = time.monotonic()
        try:
            self.shown = str(self.run(hartframe, folder))
        except Wrong as wrong:
            self.wrong = str(wrong)
        except Exception:  # of the check itself: told like the rest
            self.wrong = traceback.format_exc()
        if self.wrong:
            self.shown = "WRONG"
        self.seconds = time.monotonic() - began


# --- faults ---


def fault_rows(hartframe):
    """Faults as they are given to serve, with the requests that they spare, and whether they last."""
    rows = [("none", 0, True)]
    for fault, counts in hartframe.faults(VALUES):
        rows += [(fault, spared, True) for spared in (SPARED if counts else SPARED[:1])]
        rows += [(f"{fault}:{COUNT}", spared, False) for spared in (SPARED if counts else [])]
    return rows


def with_fault(transport, operation, fault, spared, lasts):
    name = fault.split(":")[0]

    def check_told(ended, requests):
        check(name not in HARMLESS or ended.code == 0, f"code {ended.code} for nothing")
        check(ended.code == 0 or ended.tells_trouble(), "nothing is told")
        may_pass = HARMLESS | UNNOTICED | UNHEARD.get(operation, set())
        must_tell = lasts and requests > spared and name not in may_pass
        check(not must_tell or ended.code != 0 or ended.shows_error(), "the fault is not told")

    def run(hartframe, folder):
        options = [] if fault == "none" else ["--fault", fault, "--fault-after", str(spared)]
        with Served(hartframe, transport, folder) as served:
            served.start(*options)
            ended = OPERATIONS[operation](hartframe, served, name not in UNNOTICED)
            served.stop()
            check_told(ended, served.requests)
            if operation == "write":
                served.start()
                operations.write_kept(hartframe, served)
                served.stop()
            return ended.code
    return run


def fault_cells(hartframe):
    cells = []
    for fault, spared, lasts in fault_rows(hartframe):
        row = fault + (f" after {spared}" if spared else "")
        for transport in TRANSPORTS:
            for operation in OPERATIONS:
                run = with_fault(transport, operation, fault, spared, lasts)
                cells.append(Cell(row, f"{transport} {operation}", run))
    return cells


# --- the plug pulled ---


def pulled_while_writing(transport, command):
    """While the device carries out the second of four changes."""
    typed = {"message": "ONE", "long_tag": "Two", "final_assembly_number": "3",
             "damping_value": "4"}
    expected = {"message": "written", "long_tag": "noAnswer",
                "final_assembly_number": "notAttempted", "damping_value": "notAttempted"}
    write_long_tag = 22

    def run(hartframe, folder):
        with Served(hartframe, transport, folder) as served, \
             concurrent.futures.ThreadPoolExecutor(1) as beside:
            served.start("--latency", "100")
            writing = beside.submit(operations.write_values, hartframe, served, command, typed)
            served.wait_for_command(write_long_tag)
            served.pull()
            ended = writing.result()
            check(ended.code == 2, f"code {ended.code} for a device that is gone")
            for name, outcome in expected.items():
                told = ended.writes()[name]["outcome"]
                check(told == outcome, f"{name}: {told}, not {outcome}")
            served.start()
            operations.write_kept(hartframe, served)
            check(typed.items() <= served.memory().items(), "all of it is on the device at last")
            served.stop()
            return ended.code
    return run


def pulled_while_watching(transport):
    def run(hartframe, folder):
        with Served(hartframe, transport, folder) as served:
            served.start()
            with operations.Watching(hartframe, served) as watching:
                watching.wait_for(good=True)
                served.pull()
                watching.wait_for(good=False)
                served.start()
                watching.wait_for(good=True)
                watching.end()
            served.stop()
            return 0
    return run


def unplugged_cells():
    cells = []
    for transport in TRANSPORTS:
        runs = {"write": pulled_while_writing(transport, "write"),
                "download": pulled_while_writing(transport, "download"),
                "watch": pulled_while_watching(transport)}
        cells += [Cell("unplugged", f"{transport} {name}", run) for name, run in runs.items()]
    return cells


# --- the table ---


def print_table(cells):
    columns = list(dict.fromkeys(cell.column for cell in cells))
    rows = list(dict.fromkeys(cell.row for cell in cells))
    by_place = {(cell.row, cell.column): cell.shown for cell in cells}
    first = max(map(len, rows))
    print(" " * first, *columns, sep="  ")
    for row in rows:
        shown = (by_place[row, column].rjust(len(column)) for column in columns)
        print(row.ljust(first), *shown, sep="  ")
    print()


def main():
    hartframe = Hartframe(sys.argv[1])
    faults, unplugged = fault_cells(hartframe), unplugged_cells()
    cells = faults + unplugged
    began = time.monotonic()
    with tempfile.TemporaryDirectory() as folder, \
         concurrent.futures.ThreadPoolExecutor(WORKERS) as workers:
        running = [workers.submit(cell, hartframe, pathlib.Path(folder) / str(i))
                   for i, cell in enumerate(cells)]
        for each in running:
            each.result()
    print_table(faults)
    print_table(unplugged)
    wrong = [cell for cell in cells if cell.wrong]
    for cell in wrong:
        print(f"check-links: {cell.row}, {cell.column}: {cell.wrong}", file=sys.stderr)
    slowest = max(cells, key=lambda cell: cell.seconds)
    print(f"check-links: {len(cells) - len(wrong)} of {len(cells)} as promised, in "
          f"{time.monotonic() - began:.0f} s (slowest: {slowest.row}, {slowest.column}: "
          f"{slowest.seconds:.1f} s)")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
