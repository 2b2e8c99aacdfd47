"""Running a study: the missing chunks go to an executor, a few ahead of its workers."""

import os
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from queue import Empty, SimpleQueue

from .chunks import chunks
from .work import work

__all__ = ["Progress", "clock", "processors", "run"]

AHEAD = 4  # chunks submitted for each worker, so that none waits for the next


def run(result, executor=None, workers=None, progress=None):
    """Work out the chunks that a result lacks.

    Parameters
    ----------
    result : Result
        From `open_result`.
    executor : concurrent.futures.Executor, optional
        Where to, such as ``distributed.Client(...).get_executor()``; its workers must see the result's path. Without
        one, threads of this process.
    workers : int, optional
        How many it has; without it, as many as there are processors here.
    progress : callable, optional
        Called with each `Done` as it comes.

    Returns
    -------
    list of Done
        The chunks of this run; one that fails ends the run with its error, and the others stay as they are.
    """
    workers = workers or processors()
    own = None if executor else ThreadPoolExecutor(workers)
    there = set(result.done())
    missing = (place for place in chunks(result.study) if place not in there)
    try:
        return list(_finished(result, missing, executor or own, AHEAD * workers, progress or (lambda done: None)))
    finally:
        if own:
            own.shutdown(cancel_futures=True)


def _finished(result, missing, executor, ahead, progress):
    ready, pending = SimpleQueue(), set()
    try:
        while True:
            while len(pending) < ahead and (place := next(missing, None)) is not None:
                future = executor.submit(work, result, place)
                pending.add(future)
                future.add_done_callback(ready.put)
            if not pending:
                return
            future = _next(ready)
            pending.remove(future)
            done = future.result()
            progress(done)
            yield done
    finally:
        for future in pending:
            future.cancel()


def _next(ready):
    while True:  # waiting without end would not hear Ctrl-C on Windows
        try:
            return ready.get(timeout=0.5)
        except Empty:
            pass


class Progress:
    """A line on a terminal that is written over; nothing where it is none."""

    def __init__(self, there, of, stream=sys.stderr):
        self.done, self.of, self.stream = there, of, stream
        self.first, self.elements, self.begin, self.shown = there, 0, time.monotonic(), 0.0

    def __call__(self, done):
        self.done += 1
        self.elements += done.elements
        now = time.monotonic()
        if self.stream.isatty() and (now - self.shown > 0.2 or self.done == self.of):
            self.shown = now
            seconds = max(now - self.begin, 1e-9)
            left = seconds / (self.done - self.first) * (self.of - self.done)
            self.stream.write(f"\r{self.done}/{self.of} chunks  {self.elements / seconds:.3g} elements/s  "
                              f"{clock(left)} remaining " + "\n" * (self.done == self.of))
            self.stream.flush()


def processors():
    """That this process may use."""
    return len(os.sched_getaffinity(0)) if hasattr(os, "sched_getaffinity") else os.cpu_count()


def clock(seconds):
    """As 1:02:03."""
    minutes, seconds = divmod(round(seconds), 60)
    return f"{minutes // 60}:{minutes % 60:02}:{seconds:02}"
