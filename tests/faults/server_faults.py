# SPDX-License-Identifier: MIT
"""Works the dialog and the command line before a print server with faults: each kind at each message of each
stretch, over a socket and over TCP. What the program says of a job is compared with what the server has."""
import collections
import concurrent.futures
import json
import os
import random
import subprocess
import sys
import threading
import time

here = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(here, "..", "support"))
from fault_server import KINDS, FaultServer  # noqa: E402

STRETCHES = ("opening", "choosing", "refresh", "feed", "sending", "following", "cancelling", "command line")
WAIT = 20  # seconds, of --wait
SETUP = 40  # before the job and after it, on a busy machine
UNSURE = "may still be on the queue"  # of a job, in a sentence about a failure
GONE = ("canceled", "cancelled", "aborted")

# What the program says: how many jobs with its title may then be on the server that print, from and to.
JOBS = {"printed": (1, 1), "sent": (1, 1), "cancelled": (0, 0), "failed": (0, 0), "none": (0, 0), "unknown": (0, 1)}
STATUS = {0: "printed", 1: "failed", 3: "sent", 4: "cancelled", 5: "unknown", 7: "failed"}

Case = collections.namedtuple("Case", "stretch kind message tcp seed")
Result = collections.namedtuple("Result", "case fired stall click closing wrong")


class Place:
    """A real private server with a proxy on a socket and one on TCP before it, for one trial at a time."""

    def __init__(self, root, build, folder, judges_times=True):
        self.root, self.build, self.folder, self.judges_times = root, build, folder, judges_times
        self.restarting = threading.Lock()
        os.makedirs(folder)
        os.chmod(folder, 0o755)
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith(("CUPS_", "HALVERN_", "DBUS_", "XDG_", "LC_", "DISPLAY"))}
        self.environment.update(HALVERN_PRINTER_BIN=build + "/lib/cups", QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8",
                                HOME=folder, XDG_RUNTIME_DIR=folder + "/run", QT_LOGGING_RULES="halvern.pde=false",
                                DBUS_SESSION_BUS_ADDRESS="unix:path=/nonexistent")
        os.mkdir(folder + "/run", 0o700)
        self.start()
        for queue, uri in (("Photo", "halvern://virtual/Photo"), ("Other", "halvern://virtual/Other"),
                           ("Slow", "halvern://virtual/Slow?slow=9999")):
            self.cups("add-queue", folder + "/cups", queue, "--uri", uri)
        self.proxies = {tcp: FaultServer(self.socket, self.restart, tcp, folder) for tcp in (False, True)}
        self.photo = folder + "/photo.ppm"
        with open(self.photo, "wb") as file:
            file.write(b"P6\n300 200\n255\n" + bytes(range(180)) * 1000)

    def cups(self, *arguments):
        done = subprocess.run([self.root + "/scripts/private-cups", *arguments], env=self.environment,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        if done.returncode != 0:
            raise RuntimeError("the private server: " + done.stderr)
        return done.stdout

    def start(self):
        for line in self.cups("start", self.folder + "/cups").splitlines():
            name, value = line.removeprefix("export ").split("=", 1)
            self.environment[name] = value.strip("'")
        self.socket = self.environment["CUPS_SERVER"]

    def restart(self):
        with self.restarting:
            self.cups("stop", self.folder + "/cups")
            self.start()

    def close(self):
        for proxy in self.proxies.values():
            proxy.close()
        self.cups("stop", self.folder + "/cups")

    def jobs(self, title):
        """The states of the jobs with this title, of the server itself."""
        with self.restarting:
            done = subprocess.run([self.build + "/bin/halvern-print", "--jobs", "--ended", "--json"],
                                  env=self.environment | {"CUPS_SERVER": self.socket}, capture_output=True, text=True)
        if done.returncode != 0:
            raise RuntimeError("the list of jobs: " + done.stderr)
        listed = json.loads(done.stdout)
        return [job["state"] for job in (listed["jobs"] if isinstance(listed, dict) else listed) if job["title"] == title]

    def run(self, case):
        proxy = self.proxies[case.tcp]
        title = "T%d-%d" % (id(case), random.randrange(1 << 30))
        environment = self.environment | {"CUPS_SERVER": proxy.address}
        fault = (case.message, case.kind) if case.kind else None
        tried = self.command_line if case.stretch == "command line" else self.walk
        figures, said, told, wrong = tried(case, proxy, environment, title, fault)
        states = self.jobs(title)
        printing = len([state for state in states if state not in GONE])
        if said == "failed" and UNSURE in told:
            said = "unknown"
        least, most = JOBS[said] if said else (0, 1)
        if not wrong and not least <= printing <= most:
            wrong = "said \"%s\", and the server has %s" % (said, states)
        if len(states) > 1:
            wrong = "sent more than once: %s" % states
        return Result(case, proxy.fired, *figures, wrong), proxy.messages

    def walk(self, case, proxy, environment, title, fault):
        proxy.arm(None)
        queue = "Slow" if case.stretch == "cancelling" else "Photo"
        process = subprocess.Popen([self.build + "/bin/halvern-fault-walk", case.stretch, self.photo, queue, "Other", title],
                                   env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True)
        killer = threading.Timer(300, process.kill)
        killer.start()
        try:
            began = process.stdout.readline()
            proxy.arm(fault, case.seed)
            if began == "begin\n":
                process.stdin.write("go\n")
                process.stdin.flush()
            line = process.stdout.readline()
            _, errors = process.communicate()
        finally:
            killer.cancel()
        if process.returncode != 0 or not line:
            return (0, 0, 0), None, "", "ended with %d: %s" % (process.returncode, errors[-300:])
        report = json.loads(line)
        figures = (report["stall"], report["click"], report["closing"])
        said = report["outcome"]
        if said == "failed" and not report["sentence"]:
            return figures, said, "", "failed without a word"
        return figures, said, report["sentence"], None

    def command_line(self, case, proxy, environment, title, fault):
        proxy.arm(fault, case.seed)
        started = time.monotonic()
        try:
            done = subprocess.run([self.build + "/bin/halvern-print", "--no-dialog", "--wait", str(WAIT), "--printer",
                                   "Photo", "--job-title", title, self.photo], env=environment, capture_output=True,
                                  text=True, timeout=300)
        except subprocess.TimeoutExpired:
            return (0, 0, 0), None, "", "has not ended"
        if self.judges_times and time.monotonic() - started > WAIT + SETUP:
            return (0, 0, 0), None, "", "took %d s" % (time.monotonic() - started)
        if done.returncode not in STATUS:
            return (0, 0, 0), None, "", "ended with %d: %s" % (done.returncode, done.stderr[-300:])
        if done.returncode != 0 and not done.stderr.strip():
            return (0, 0, 0), None, "", "failed without a word"
        return (0, 0, 0), STATUS[done.returncode], done.stderr, None


def count_messages(place):
    """How many messages each stretch has when nothing is wrong."""
    counts = {}
    for stretch in STRETCHES:
        result, messages = place.run(Case(stretch, None, 0, False, 0))
        if result.wrong:
            raise RuntimeError("without a fault, %s: %s" % (stretch, result.wrong))
        counts[stretch] = max(messages, 1)
    return counts


def try_all(root, build, folder, samples=0, seed=1, workers=3, judges_times=True, say=print):
    """The results; of `samples` trials that the seed chooses, or of all."""
    places = [Place(root, build, "%s/%d" % (folder, i), judges_times) for i in range(workers)]
    try:
        counts = count_messages(places[0])
        say("messages: " + ", ".join("%s %d" % item for item in counts.items()))
        cases = [Case(stretch, kind, message, tcp, seed)
                 for stretch in STRETCHES for kind in KINDS for message in range(1, counts[stretch] + 1)
                 for tcp in (False, True)]
        dice = random.Random(seed)
        dice.shuffle(cases)
        cases = cases[:samples or len(cases)]
        free = list(places)

        def one(case):
            place = free.pop()
            try:
                return place.run(case)[0]
            finally:
                free.append(place)
        results = []
        with concurrent.futures.ThreadPoolExecutor(workers) as pool:
            for result in pool.map(one, cases):
                results.append(result)
                if result.wrong:
                    say("  %s, %s at message %d%s: %s" % (result.case.stretch, result.case.kind, result.case.message,
                                                        " over TCP" if result.case.tcp else "", result.wrong))
        return results
    finally:
        for place in places:
            place.close()
