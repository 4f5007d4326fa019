# SPDX-FileCopyrightText: 2026 The ORVEL developers
# SPDX-License-Identifier: MIT
"""A print server of the tests' own, with one printer, whose jobs are PDF files.

    with PrintServer() as server:
        ...                 # programs that are started now print there
        server.jobs(2)      # the PDF files of all jobs, once there are two

Nothing of the system's own print server is touched. Needs the Debian packages cups, cups-client, cups-filters, and
root or sudo: a print server writes files for nobody else.
"""

import os
import pathlib
import subprocess
import tempfile
import time

PATIENCE = 30  # seconds
PRINTER = "paper"
AS_ROOT = [] if os.geteuid() == 0 else ["sudo", "-n"]

FILES = """\
SystemGroup root
FileDevice Yes
Sandboxing relaxed
ServerRoot {0}/etc
RequestRoot {0}/spool
TempDir {0}/spool/tmp
CacheDir {0}/cache
StateDir {0}/state
ServerBin /usr/lib/cups
AccessLog {0}/log
ErrorLog {0}/log
PageLog {0}/log
Printcap
"""

SERVER = """\
Listen {0}/socket
Browsing Off
WebInterface No
DefaultAuthType None
PreserveJobHistory Yes
PreserveJobFiles Yes
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""


class PrintServer:
    def __enter__(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.temporary.name)
        # The server's filters run as somebody else.
        self.folder.chmod(0o755)
        for name in ["etc", "spool/tmp", "cache", "state"]:
            (self.folder / name).mkdir(parents=True)
        self._write("etc/cups-files.conf", FILES)
        self._write("etc/cupsd.conf", SERVER)
        self.process = subprocess.Popen(
            [*AS_ROOT, "/usr/sbin/cupsd", "-f", "-c", self.folder / "etc/cupsd.conf",
             "-s", self.folder / "etc/cups-files.conf"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.environ["CUPS_SERVER"] = str(self.folder / "socket")
        try:
            self._until(lambda: self._succeeds("lpstat", "-r"), "the print server")
            # Its list of printer models takes a moment.
            self._until(lambda: self._succeeds("lpadmin", "-p", PRINTER, "-E", "-v", f"file:{self.folder}/printed",
                                               "-m", "lsb/usr/cupsfilters/Generic-PDF_Printer-PDF.ppd"), "the printer")
            self._until(lambda: self._succeeds("lpadmin", "-d", PRINTER), "the default printer")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self.stop()
        os.environ.pop("CUPS_SERVER", None)
        if AS_ROOT:
            # Some of it belongs to root.
            subprocess.run([*AS_ROOT, "chown", "-R", str(os.geteuid()), self.folder], check=True)
        self.temporary.cleanup()

    def stop(self):
        """The printer is gone."""
        if self.process.poll() is None:
            subprocess.run([*AS_ROOT, "kill", str(self.process.pid)], check=True)
            self.process.wait()

    def jobs(self, count):
        """The documents of all jobs so far, once there are that many and all are printed."""
        def are_done():
            done = subprocess.run(["lpstat", "-W", "completed"], capture_output=True, text=True, check=False)
            waiting = subprocess.run(["lpstat", "-W", "not-completed"], capture_output=True, text=True, check=False)
            return len(done.stdout.splitlines()) >= count and not waiting.stdout
        self._until(are_done, f"{count} jobs")
        names = subprocess.run([*AS_ROOT, "find", self.folder / "spool", "-name", "d*"], capture_output=True, text=True,
                               check=True).stdout.split()
        return [self._read(name) for name in sorted(names)]

    def printed(self):
        """What the printer made of the last job."""
        return self._read(self.folder / "printed")

    # ------------------------------------------------------------------------------------------------------

    def _write(self, name, content):
        (self.folder / name).write_text(content.format(self.folder), encoding="utf-8")

    @staticmethod
    def _read(path):
        return subprocess.run([*AS_ROOT, "cat", path], capture_output=True, check=True).stdout

    @staticmethod
    def _succeeds(*command):
        return subprocess.run(command, capture_output=True, check=False).returncode == 0

    @staticmethod
    def _until(condition, what):
        end = time.monotonic() + PATIENCE
        while not condition():
            if time.monotonic() > end:
                raise AssertionError("waited in vain for " + what)
            time.sleep(0.1)
