# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

"""Stand-ins for what Conan 2 gives a recipe, as its documentation describes it. What is not here, a recipe cannot use."""

import os
import subprocess

from .errors import ConanException


class Option:
    """One value; comparing it with a value that is not possible is an error, as in Conan."""

    def __init__(self, value, possible):
        self._value = str(value)
        self._possible = [str(one) for one in possible]
        if self._value not in self._possible:
            raise ConanException(f"'{value}' is not one of {possible}")

    def __eq__(self, other):
        if str(other) not in self._possible:
            raise ConanException(f"'{other}' is not one of {self._possible}")
        return self._value == str(other)

    def __bool__(self):
        return self._value.lower() not in ("false", "none", "0", "off", "")

    def __str__(self):
        return self._value


class Values:
    """Settings or options: only what was given exists."""

    def __init__(self, values):
        self.__dict__.update(values)


class Folders:
    root = None
    source = ""
    build = ""
    generators = ""


class CppInfo:
    def __init__(self):
        self.bindirs = ["bin"]
        self.libdirs = ["lib"]
        self.includedirs = ["include"]
        self.builddirs = []
        self.libs = []
        self.requires = []
        self.properties = {}

    @property
    def bindir(self):
        (only,) = self.bindirs
        return only

    def set_property(self, name, value):
        if name not in ("cmake_find_mode", "cmake_file_name", "cmake_target_name", "pkg_config_name"):
            raise ConanException(f"there is no property {name}")
        self.properties[name] = value


class Components(dict):
    def __missing__(self, name):
        self[name] = CppInfo()
        return self[name]


class PackageInfo(CppInfo):
    def __init__(self):
        super().__init__()
        self.components = Components()


class Layouts:
    def __init__(self):
        self.build = CppInfo()


class Dependency:
    def __init__(self, options):
        self.options = Values(options)


class ConanFile:
    """The driver sets the folders and the prefix of what is required; `calls` holds what the recipe asked for."""

    version = None
    options = {}
    default_options = {}
    settings = ()
    generators = ()

    def __init__(self, settings, options, recipe_folder):
        unknown = set(settings) - set(self.settings)
        if unknown:
            raise ConanException(f"the recipe does not declare the settings {unknown}")
        self.settings = Values({name: settings[name] for name in self.settings})
        self.dependencies = {}
        self._default_options = self.default_options
        own = {name: value for name, value in self.default_options.items() if ":" not in name}
        own.update(options)
        self.options = Values({name: Option(value, self.options[name]) for name, value in own.items()})
        self.recipe_folder = recipe_folder
        self.folders = Folders()
        self.cpp = Layouts()
        self.cpp_info = PackageInfo()
        self.calls = []
        self.cache_variables = {}
        self.prefix_path = []

    def requires(self, reference, transitive_headers=None, transitive_libs=None):
        self.calls.append(("requires", reference))
        name = reference.split("/")[0]
        options = {}
        for option, value in self._default_options.items():
            if option.startswith(f"{name}/*:"):
                options[option.split(":")[1]] = Option(value, [True, False])
        self.dependencies[name] = Dependency(options)

    def tool_requires(self, reference):
        self.calls.append(("tool_requires", reference))

    def run(self, command, env=None):
        self.calls.append(("run", command, env))
        subprocess.run(command, shell=True, check=True, cwd=self.build_folder)

    @property
    def build_folder(self):
        return os.path.join(self.base_folder, self.folders.build)

    @property
    def source_folder(self):
        return os.path.join(self.source_base_folder, self.folders.source)
