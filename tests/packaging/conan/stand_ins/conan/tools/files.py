# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

import fnmatch
import os
import shutil


def load(conanfile, path):
    with open(path, encoding="utf-8") as file:
        return file.read()


def copy(conanfile, pattern, src, dst):
    """Like Conan's: the pattern is compared with the path relative to src, and * stands for slashes, too."""
    copied = []
    for folder, folders, names in os.walk(src):
        folders[:] = [name for name in folders if name not in (".git", "build")]
        for name in names:
            relative = os.path.relpath(os.path.join(folder, name), src)
            if fnmatch.fnmatch(relative, pattern):
                target = os.path.join(dst, relative)
                os.makedirs(os.path.dirname(target), exist_ok=True)
                shutil.copy2(os.path.join(folder, name), target)
                copied.append(target)
    return copied
