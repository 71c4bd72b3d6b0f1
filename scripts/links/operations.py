"""What is done to a served device, and what has to be true afterwards."""

import json
import math
import signal
import subprocess

from programs import LIMIT, Wrong, check

ANSWERS = ["ok", "20 mA", "ok", "End of test", "ok"]
TYPED = {"tag": "NEWTAG", "damping_value": "3", "final_assembly_number": "4711"}
UNSENT = ("noAnswer", "notAttempted")


def upload(hartframe, served, trusted):
    """`trusted`: what comes over the link is what the device has."""
    ended = hartframe.run(served.link, "upload")
    if ended.code == 0 and trusted:
        memory = served.memory()
        values = ended.values()
        for name in TYPED:
            check(_same(values.get(name), memory[name]), f"{name} is loaded as the device has it")
    return ended


def method(hartframe, served, _):
    answers = [word for answer in ANSWERS for word in ("--answer", answer)]
    return hartframe.run(served.link, "run", "loop_test", *answers)


def write(hartframe, served, trusted):
    return write_values(hartframe, served, "write", TYPED, trusted)


def write_values(hartframe, served, command, typed, trusted=True):
    """Writes, and looks at each value: the device has it, it is kept for later, or it is named as
    refused. The value that came back over a link that is not trusted may be another."""
    kept = served.folder / "kept"
    ended = hartframe.run(served.link, command, *assignments(typed), "--pending", str(kept))
    memory, pending, writes = served.memory(), read_pending(kept), ended.writes()
    for name, value in typed.items():
        outcome = writes.get(name, {}).get("outcome", "unmentioned")
        there = _same(value, memory.get(name))
        good = ("written",) if trusted else ("written", "adjusted")
        check(ended.code != 0 or outcome in good, f"{name}: {outcome}, but the code is 0")
        check(outcome != "written" or there, f"{name} is said to be written")
        check(there or outcome not in UNSENT or _same(value, pending.get(name)),
              f"{name}: {outcome}, and not kept")
        check(outcome != "unmentioned" or _same(value, pending.get(name)), f"{name} is lost")
        check(outcome in ("written", "unmentioned") or
              _same(value, writes[name]["meant"].split(" ")[0]), f"{name}: what was meant is told")
    return ended


def write_kept(hartframe, served):
    """The next write over a good link writes what is kept, and nothing stays behind."""
    kept = served.folder / "kept"
    pending = read_pending(kept)
    if not pending:
        return
    ended = hartframe.run(served.link, "write", "--pending", str(kept))
    check(ended.code == 0, f"what is kept is not written: {ended.document.get('problems')}")
    check(not read_pending(kept), "what is written is kept no more")
    again = hartframe.run(served.link, "read", *pending).values()
    memory = served.memory()
    for name, value in pending.items():
        shown = value if again[name] is None else again[name]  # nothing is shown of a password
        check(_same(value, shown) and _same(value, memory[name]),
              f"{name}={value} was kept, but the device has {memory[name]}")


def assignments(typed):
    return [f"{name}={value}" for name, value in typed.items()]


def read_pending(file):
    lines = file.read_text(encoding="utf-8").splitlines() if file.exists() else []
    return dict(line.split("=", 1) for line in lines if "=" in line and not line.startswith(";"))


def _same(left, right):
    try:
        return math.isclose(float(left), float(right), rel_tol=1e-6)
    except (TypeError, ValueError):
        return left is not None and str(left) == str(right)


class Watching:
    """hartframe watch, which goes on when its device is gone for a while."""

    def __init__(self, hartframe, served):
        self.hartframe = hartframe
        self.error = served.folder / "watch.err"
        line = [hartframe.program, "watch", "primary_variable", "--link", served.link, "--dtm",
                "SampleTemperature", "--retries", "1", "--json"]
        with open(self.error, "w", encoding="utf-8") as error:
            self.process = subprocess.Popen(line, stdout=subprocess.PIPE, stderr=error, text=True,
                                            stdin=subprocess.DEVNULL)

    def wait_for(self, good):
        """The next value that the device has sent, or the next error."""
        for line in self.process.stdout:
            told = json.loads(line)
            check("update" in told, f"watch ends: {told}")
            if ("error" not in told["update"]) == good:
                return
        raise Wrong(f"watch ends: {self.error.read_text(encoding='utf-8')[-300:]}")

    def end(self):
        self.process.send_signal(signal.SIGINT)
        self.process.communicate(timeout=LIMIT)
        self.hartframe.check_end("watch", self.process.returncode,
                                 self.error.read_text(encoding="utf-8"))
        check(self.process.returncode == 0, f"watch ended with {self.process.returncode}")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
            self.process.communicate()
