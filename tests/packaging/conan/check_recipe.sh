#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Exit code 77 means that this machine cannot run the check.
if ! command -v python3 >/dev/null; then
    echo 'skipped: python3 is not installed'
    exit 77
fi
exec python3 "$(dirname "$0")/check_recipe.py" "$@"
