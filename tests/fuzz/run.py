"""Looks for faults with the fuzzers of a build: python3 run.py BUILD [NAME] [SECONDS]

Every fuzzer, or the one named, runs for so many seconds from its seeds and from what earlier runs
found worth keeping. Prints a line for each; inputs that break something stay in BUILD/findings.
"""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORDS = re.compile(r'"[A-Za-z][A-Za-z0-9_-]*"')  # keys and choices of the input files


def dictionary(build):
    words = set()
    for source in [*(ROOT / "apps").rglob("*.cpp"), *(ROOT / "apps").rglob("*.h")]:
        words.update(WORDS.findall(source.read_text(encoding="utf-8")))
    path = build / "keys.dict"
    path.write_text("\n".join(sorted(words)) + "\n", encoding="utf-8")
    return path


def fuzz(build, name, seconds):
    corpus, findings = build / "corpus" / name, build / "findings"
    for folder in (corpus, findings):
        folder.mkdir(parents=True, exist_ok=True)
    seeds = [folder for folder in (ROOT / "tests/fuzz/seeds" / name, ROOT / "apps/examples" / name) if folder.is_dir()]
    before = set(findings.glob(f"{name}-*"))
    process = subprocess.run(
        [build / f"fuzz_{name}", corpus, *seeds, f"-max_total_time={seconds}", f"-dict={dictionary(build)}",
         f"-artifact_prefix={findings}/{name}-", "-timeout=10", "-rss_limit_mb=2048", "-print_final_stats=1"],
        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, errors="replace")
    runs = re.findall(r"^stat::number_of_executed_units: +(\d+)", process.stderr, re.M)
    coverage = re.findall(r"\bcov: (\d+)", process.stderr)
    found = sorted(set(findings.glob(f"{name}-*")) - before)
    print(f"{name:14} {int(runs[-1]) if runs else 0:>12,} runs  {coverage[-1] if coverage else '0':>6} branches  "
          f"{', '.join(map(str, found)) or 'nothing found' if process.returncode == 0 or found else 'failed'}", flush=True)
    if process.returncode:
        print("\n".join(process.stderr.splitlines()[-40:]), file=sys.stderr)
    return process.returncode == 0


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    names = [word for word in sys.argv[2:] if not word.isdigit()]
    seconds = next((int(word) for word in sys.argv[2:] if word.isdigit()), 60)
    names = names or sorted(path.name.removeprefix("fuzz_") for path in build.glob("fuzz_*"))
    return 0 if all([fuzz(build, name, seconds) for name in names]) else 1


if __name__ == "__main__":
    sys.exit(main())
