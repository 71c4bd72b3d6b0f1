"""hartframe as a child process: one that serves a device, and those that work with it."""

import json
import pathlib
import re
import shutil
import signal
import subprocess
import threading
import time

DTM = "SampleTemperature"
DEMO_DEVICE = pathlib.Path("dtms/sampletemperature/demo-device.txt")
LIMIT = 30  # seconds that anything may take
INTERNAL = 70  # exit code of what should not be
# Short waits, so that what gets no answer is soon over.
SETTINGS = {"udp": "?timeout=250&connecttimeout=1000", "tcp": "?timeout=250&connecttimeout=1000",
            "pty": ""}


class Wrong(Exception):
    """A promise that was not kept."""


def check(holds, promise):
    if not holds:
        raise Wrong(promise)


class Hartframe:
    """The program, with what it says about itself."""

    def __init__(self, program):
        self.program = str(pathlib.Path(program).resolve())
        self.codes = [int(code) for code in re.findall(r"^ +(\d+)  ", self._said("--help"), re.M)]
        check(INTERNAL in self.codes, "--help lists the exit codes")

    def _said(self, *arguments):
        result = subprocess.run([self.program, *arguments], capture_output=True, text=True,
                                timeout=LIMIT)
        return result.stdout + result.stderr

    def faults(self, values):
        """The faults that the emulated device knows, with these values in the places of names
        ("FLAGS"): pairs of a fault, and whether it may be counted."""
        said = self._said("read", "tag", "--dtm", DTM, "--device", str(DEMO_DEVICE),
                          "--fault", "unheard-of")
        _, _, listed = said.partition("Faults are ")
        faults = []
        for text in listed.strip().rstrip(".").split(", "):
            form = text.removesuffix("[:COUNT]")
            name, _, place = form.partition(":")
            check(not place or place in values, f"a value for {place} of {text}")
            faults.append((f"{name}:{values[place]}" if place else name, form != text))
        check(faults and faults[0][0], "the faults are listed")
        return faults

    def run(self, link, *arguments):
        """One command to its end."""
        line = [self.program, *arguments, "--link", link, "--dtm", DTM, "--retries", "1", "--json"]
        began = time.monotonic()
        try:
            ended = subprocess.run(line, capture_output=True, text=True, timeout=LIMIT,
                                   stdin=subprocess.DEVNULL)
        except subprocess.TimeoutExpired:
            raise Wrong(f"{arguments[0]} does not end") from None
        self.check_end(arguments[0], ended.returncode, ended.stderr)
        return Ended(ended, time.monotonic() - began)

    def check_end(self, what, code, error):
        check(code >= 0, f"{what} ended by signal {-code}: {error[-300:]}")
        check("Sanitizer" not in error and "runtime error" not in error, f"{what}: {error[-2000:]}")
        check(code in self.codes and code != INTERNAL, f"{what} ended with {code}: {error[-300:]}")


class Ended:
    """What a command left behind."""

    def __init__(self, ended, seconds):
        self.code = ended.returncode
        self.seconds = seconds
        self.error = ended.stderr
        try:
            self.document = json.loads(ended.stdout)
        except json.JSONDecodeError:
            raise Wrong(f"no JSON: {ended.stdout[-300:]} {ended.stderr[-300:]}") from None
        check(self.document["exitCode"] == self.code, "the document's exit code is the program's")

    def values(self):
        return {each["name"]: each["value"] for each in self.document.get("variables", [])}

    def writes(self):
        return {each["variable"]["name"]: each for each in self.document.get("writes", [])}

    def shows_error(self):
        """A method has shown more than its own messages."""
        titles = {each["title"] for each in self.document.get("messages", [])}
        return not titles <= {"Loop test"}

    def tells_trouble(self):
        unwritten = [each for each in self.writes().values() if each["outcome"] != "written"]
        return bool(self.document.get("problems") or unwritten)


class Served:
    """A device that hartframe serves, over one transport, with a memory of its own in a folder. It
    can be stopped or killed and started again at the same place."""

    def __init__(self, hartframe, transport, folder):
        self.hartframe = hartframe
        self.transport = transport
        self.folder = folder
        self.file = folder / "device.txt"
        self.place = str(folder / "line") if transport == "pty" else "0"
        self.process = None
        self.requests = 0  # that have come since it was started
        shutil.copy(DEMO_DEVICE, self.file)

    @property
    def link(self):
        kind = "modem:" if self.transport == "pty" else "hartip://"
        way = "" if self.transport == "pty" else "/" + self.transport
        return kind + self.place + way + SETTINGS[self.transport]

    def start(self, *options):
        way = ["--pty", self.place]
        if self.transport != "pty":
            way = ["--hart-ip", self.place, "--" + self.transport]
        with open(self.folder / "serve.err", "w", encoding="utf-8") as error:
            self.process = subprocess.Popen(
                [self.hartframe.program, "serve", "--dtm", DTM, "--device", str(self.file), *way,
                 "--verbose", "--json", *options],
                stdout=subprocess.PIPE, stderr=error, text=True, stdin=subprocess.DEVNULL)
        self.requests = 0
        self.place = self._wait_for("listening")["address"]
        return self

    def wait_for_command(self, number):
        """Until a master's command of that number has reached the device."""
        while self._wait_for("request")["command"] != str(number):
            pass

    def stop(self):
        """Ends it as its user would."""
        process, self.process = self.process, None
        process.terminate()
        try:
            out, _ = process.communicate(timeout=LIMIT)
        except subprocess.TimeoutExpired:
            process.kill()
            raise Wrong("serve does not end") from None
        self.requests += out.count('{"request":')
        error = (self.folder / "serve.err").read_text(encoding="utf-8")
        self.hartframe.check_end("serve", process.returncode, error)
        check(process.returncode == 0, f"serve ended with {process.returncode}: {out[-300:]}")

    def pull(self):
        """From one moment to the next, with nothing tidied up."""
        process, self.process = self.process, None
        process.send_signal(signal.SIGKILL)
        process.communicate()

    def memory(self):
        """The device's values by their names."""
        lines = self.file.read_text(encoding="utf-8").splitlines()
        return dict(line.split("=", 1) for line in lines if "=" in line)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process:
            self.pull()

    def _wait_for(self, event):
        late = threading.Timer(LIMIT, self.process.kill)
        late.start()
        try:
            for line in self.process.stdout:
                try:
                    told = json.loads(line)
                except json.JSONDecodeError:
                    continue
                self.requests += "request" in told
                if event in told:
                    return told[event]
        finally:
            late.cancel()
        error = (self.folder / "serve.err").read_text(encoding="utf-8")
        raise Wrong(f"serve ends without a \"{event}\": {error[-300:]}")
