"""The command: ``python -m quorvel.study STUDY.toml``."""

import argparse
import os
import sys
from contextlib import contextmanager
from pathlib import Path

from ._extra import needed
from .chunks import chunks
from .definition import StudyError, read_study
from .execution import Progress, clock, processors, run
from .plan import plan

DONE, FAILED, REFUSED, STOPPED = 0, 1, 2, 130


def main(args=None):
    options = _options(args)
    try:
        study = read_study(options.study)
        return _plan(study, options) if options.plan else _run(study, options)
    except (StudyError, ModuleNotFoundError) as error:
        return _say(str(error), REFUSED)
    except KeyboardInterrupt:
        return _say("stopped; the same command goes on from here", STOPPED)
    except OSError as error:
        return _say(str(error), FAILED)


def _options(args):
    parser = argparse.ArgumentParser(prog="python -m quorvel.study", description="Run a parametric study of a facade.")
    parser.add_argument("study", help="TOML file; quorvel.study.definition describes it")
    parser.add_argument("--result", help="Zarr group to make or to go on with, a folder or the URL of a store "
                        "(default: the file's name with .zarr)")
    parser.add_argument("--plan", "--check", action="store_true", help="say how much and how long, without running")
    where = parser.add_mutually_exclusive_group()
    where.add_argument("--threads", type=int, default=processors(), help="threads of this machine")
    where.add_argument("--scheduler", metavar="ADDRESS", help="of a Dask scheduler; its workers must see the result")
    options = parser.parse_args(args)
    if options.threads < 1:
        parser.error("--threads must be 1 or more")
    options.result = options.result or os.fspath(Path(options.study).with_suffix(".zarr"))
    return options


def _say(text, code):
    print(f"\r{text}" if sys.stderr.isatty() else text, file=sys.stderr)
    return code


def _plan(study, options):
    planned = plan(study)
    print(f"elements     {planned.elements:.4g} = {' x '.join(map(str, study.shape))} x 8760 hours"
          f" (stations, tilts, azimuths, glazings, blinds)\n"
          f"chunks       {planned.chunks}, up to {planned.chunk_bytes / 1e6:.3g} MB of memory each\n"
          f"output       {planned.output_bytes / 1e6:.3g} MB before compression ({', '.join(study.keep)})\n"
          f"measured     {planned.rate:.3g} elements/s on one thread now, without writing\n"
          f"estimated    {clock(planned.seconds(options.threads))} on {options.threads} such thread(s)")
    return DONE


def _run(study, options):
    from .places import place_of
    from .store import open_result

    if options.scheduler:
        place_of(options.result).expect_shared()
    result = open_result(study, options.result)
    all_chunks, there = len(chunks(study)), len(result.done())
    with _executor(options) as (executor, workers):
        finished = run(result, executor, workers, Progress(there, all_chunks))
    new = sum(done.elements > 0 for done in finished)
    print(f"{options.result}: {all_chunks} chunks, {new} of them worked out now")
    return DONE


@contextmanager
def _executor(options):
    """Where chunks are worked out, None for threads of this process, and by how many workers."""
    if not options.scheduler:
        yield None, options.threads
        return
    with needed("distributed").Client(options.scheduler) as client:
        yield client.get_executor(retries=2), sum(client.nthreads().values())


if __name__ == "__main__":
    sys.exit(main())
