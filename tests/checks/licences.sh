#!/bin/sh
# Each file has a licence and a copyright holder, and the text of the licence is in LICENSES. Runs in the project's root.
if ! command -v reuse >/dev/null; then
    echo 'skipped: reuse is not installed'
    exit 77
fi
if ! git rev-parse --git-dir >/dev/null 2>&1; then
    echo 'skipped: without git, reuse takes what is built for sources'
    exit 77
fi
cmp LICENSE LICENSES/MIT.txt && reuse lint
