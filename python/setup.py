"""The package is what CMake's target tessaryn-python makes, for the Python that asks."""

import pathlib
import shutil
import subprocess
import sys

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = pathlib.Path(__file__).resolve().parent.parent
WITHOUT = ("SHELL", "TESTS", "BENCH", "MPI")


class CMakeBuild(build_ext):
    def build_extension(self, ext):
        build = pathlib.Path(self.build_temp).resolve()
        options = ["-GNinja", "-DCMAKE_BUILD_TYPE=Release", f"-DPython3_EXECUTABLE={sys.executable}"]
        options += [f"-DTESSARYN_{part}=OFF" for part in WITHOUT]
        subprocess.run(["cmake", "-S", ROOT, "-B", build, *options], check=True)
        subprocess.run(["cmake", "--build", build, "--target", "tessaryn-python"], check=True)
        package = pathlib.Path(self.get_ext_fullpath(ext.name)).resolve().parent
        shutil.copytree(build / "python" / "tessaryn", package, dirs_exist_ok=True)


setup(packages=["tessaryn"], ext_modules=[Extension("tessaryn._tessaryn", [])], cmdclass={"build_ext": CMakeBuild})
