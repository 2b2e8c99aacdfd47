#!/usr/bin/env python3
"""An installed tree serves applications in C and C++, wherever it is moved.

    install_test.py BUILD CXX
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CXX, BUILD = sys.argv.pop(), Path(sys.argv.pop())
CONSUMER = Path(__file__).parent / "consumer"


def output_of(*command, **options):
    done = subprocess.run(command, capture_output=True, text=True, **options)
    if done.returncode:
        raise AssertionError(f"{command}: {done.stdout}{done.stderr}")
    return done.stdout


class Installed(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        output_of("cmake", "--install", BUILD, "--prefix", self.folder / "installed")
        self.prefix = (self.folder / "installed").rename(self.folder / "moved")
        self.libraries = next(self.prefix.rglob("libquorvel_arrays.so")).parent

    def run_consumer(self, program):
        """The program fails where a result is wrong."""
        output_of(program, env={"LD_LIBRARY_PATH": str(self.libraries)})

    def test_cmake_package(self):
        build = self.folder / "build"
        output_of("cmake", "-S", CONSUMER, "-B", build, f"-DCMAKE_PREFIX_PATH={self.prefix}", f"-DCMAKE_CXX_COMPILER={CXX}")
        output_of("cmake", "--build", build)
        self.run_consumer(build / "consumer")
        output_of(build / "consumer_static")

    @unittest.skipUnless(shutil.which("pkg-config"), "needs pkg-config")
    def test_pkg_config(self):
        environment = {**os.environ, "PKG_CONFIG_PATH": str(self.libraries / "pkgconfig")}
        flags = output_of("pkg-config", "--cflags", "--libs", "quorvel", "quorvel_arrays", env=environment).split()
        program = self.folder / "consumer"
        output_of(CXX, "-std=c++20", CONSUMER / "main.cpp", "-o", program, *flags, "-pthread")
        self.run_consumer(program)

    def test_each_header_stands_alone(self):
        include = self.prefix / "include"
        headers = [path.relative_to(include) for path in include.rglob("*.h*")]
        self.assertGreater(len(headers), 10)
        for header in headers:
            output_of(CXX, "-std=c++20", "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only", f"-I{include}",
                      "-x", "c++", "-", input=f"#include <{header}>\n")


if __name__ == "__main__":
    unittest.main()
