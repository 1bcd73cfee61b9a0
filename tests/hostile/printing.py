# SPDX-License-Identifier: MIT
"""One run of the tool, with what it took."""

import os
import resource
import signal
import subprocess
import threading
from dataclasses import dataclass

_MOST_SECONDS = 2.0 * 2  # of the processor; twice what is aimed at, for the machine may have other things to do
_MOST_MEBIBYTES = 512
_MOST_MEBIBYTES_WITH_PICTURES = 1024
_STACK = 512 << 10  # bytes: as much as a thread may have
_GIVES_UP = 60.0  # seconds of the clock: then it hangs


@dataclass(frozen=True)
class Run:
    status: int  # as waitpid has it
    seconds: float
    mebibytes: float
    message: str
    has_output: bool

    def find_faults(self, is_refused, draws_pictures):
        faults = []
        if os.WIFSIGNALED(self.status):
            return [f'ended by {signal.Signals(os.WTERMSIG(self.status)).name}: {self.message[-300:]}']
        if self.seconds > _MOST_SECONDS:
            faults.append(f'took {self.seconds:.1f} s')
        if self.mebibytes > (_MOST_MEBIBYTES_WITH_PICTURES if draws_pictures else _MOST_MEBIBYTES):
            faults.append(f'took {self.mebibytes:.0f} MiB')
        status = os.WEXITSTATUS(self.status)
        if status != (1 if is_refused else 0):
            faults.append(f'ended with {status}: {self.message[:300]}')
        if self.has_output != (status == 0):
            faults.append('left an output' if self.has_output else 'left no output')
        if status != 0 and not self._is_clear():
            faults.append(f'gives no clear message: {self.message[:300]!r}')
        return faults

    def _is_clear(self):
        lines = self.message.splitlines()
        return len(lines) == 1 and lines[0].startswith('zamprint: ') and len(lines[0]) < 500 and lines[0].isprintable()


def _set_limits():
    resource.setrlimit(resource.RLIMIT_AS, (8 << 30, 8 << 30))
    resource.setrlimit(resource.RLIMIT_CPU, (60, 60))
    resource.setrlimit(resource.RLIMIT_STACK, (_STACK, _STACK))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def print_document(zamprint, source, output, form):
    # Its folder is the document's, so that pictures beside it are allowed.
    command = [zamprint, '-f', form, '-q', '-o', str(output), str(source)]
    with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                          preexec_fn=_set_limits) as process:
        watch = threading.Timer(_GIVES_UP, process.kill)
        watch.start()
        message = process.stderr.read().decode(errors='replace')
        _, status, usage = os.wait4(process.pid, 0)
        watch.cancel()
        process.returncode = os.waitstatus_to_exitcode(status)
    return Run(status, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, message, output.exists())
