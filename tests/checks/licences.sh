#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Each file has a licence and a copyright holder, the text of the licence is in LICENSES, and source files and scripts say
# both in their first lines. The files of packaging/windows/sdk do not: an SDK that was made is known by their bytes.
# Runs in the project's root.
if ! command -v reuse >/dev/null; then
    echo 'skipped: reuse is not installed'
    exit 77
fi
if ! git rev-parse --git-dir >/dev/null 2>&1; then
    echo 'skipped: without git, reuse takes what is built for sources'
    exit 77
fi
silent=$(git ls-files '*.h' '*.cpp' '*.cmake' '*.sh' '*.py' '*CMakeLists.txt' | grep -v '^packaging/windows/sdk/' |
    while read -r file; do
        [ "$(head -n 3 "$file" | grep -c '^\(//\|#\) SPDX-\(FileCopyrightText: \|License-Identifier: MIT$\)')" = 2 ] ||
            echo "$file"
    done)
if [ -n "$silent" ]; then
    printf 'These files do not begin with their copyright and licence (see LICENSE):\n%s\n' "$silent"
    exit 1
fi
cmp LICENSE LICENSES/MIT.txt && reuse lint
