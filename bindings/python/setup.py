"""Builds the extension module by CMake, which knows the sources of libravo; everything else is in pyproject.toml.

RAVO_PYTHON_MODULE names an extension module that is already built.
"""
import os
import pathlib
import re
import shutil
import subprocess

from setuptools import Extension, setup  # type: ignore[import]
from setuptools.command.build_ext import build_ext  # type: ignore[import]

HERE = pathlib.Path(__file__).resolve().parent
# In a source distribution, libravo's sources are in a folder of their own.
NATIVE = HERE / "native" if (HERE / "native").exists() else HERE.parents[1]


def processors() -> int:
    """How many compilers run at once: as many as this process may use; RAVO_JOBS says another number."""
    own = len(os.sched_getaffinity(0)) if hasattr(os, "sched_getaffinity") else os.cpu_count() or 1
    return int(os.environ.get("RAVO_JOBS") or own)


def version() -> str:
    found = re.search(r"project\(RavoInterface VERSION ([0-9.]+)", (NATIVE / "CMakeLists.txt").read_text())
    assert found, "CMakeLists.txt has no version"
    return found.group(1)


class BuildModule(build_ext):
    def build_extension(self, ext: Extension) -> None:
        target = pathlib.Path(self.get_ext_fullpath(ext.name))
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(os.environ.get("RAVO_PYTHON_MODULE") or self.built_by_cmake(), target)

    def built_by_cmake(self) -> pathlib.Path:
        folder = pathlib.Path(self.build_temp).resolve()
        options = ["-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_UNITY_BUILD=ON", "-DRAVO_BUILD_PYTHON=ON", "-DRAVO_BUILD_TOOLS=OFF", "-DRAVO_BUILD_TESTS=OFF",
                   "-DRAVO_INSTALL=OFF", "-DBUILD_SHARED_LIBS=OFF"]
        subprocess.run(["cmake", "-S", NATIVE, "-B", folder, "-Wno-dev", *options], check=True)
        subprocess.run(["cmake", "--build", folder, "--target", "ravo_python_module", "--parallel", str(processors())], check=True)
        return folder / "python" / "ravo" / "_ravo.abi3.so"


setup(version=version(), ext_modules=[Extension("ravo._ravo", sources=[], py_limited_api=True)], cmdclass={"build_ext": BuildModule},
      options={"bdist_wheel": {"py_limited_api": "cp311"}})
