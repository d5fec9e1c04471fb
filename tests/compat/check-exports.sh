# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# check-exports.sh LIBRARY: what the library exports never has the name of a class of CTK or Qxt in the global namespace.
# A program that links those, too, would mix the two up. Exit code 77 means that this machine cannot look.
command -v nm >/dev/null 2>&1 || {
    echo 'skipped: nm is not installed'
    exit 77
}
# Without the marks of the address sanitizer, which nm does not take apart.
symbols=$(nm -DC --defined-only "$1" | grep -v ' __odr_asan\._ZN7morvane') || exit 1
others=$(printf '%s\n' "$symbols" | sed -E 's/morvane::compat::QxtLabel(::~?QxtLabel)?//g' |
    grep -E 'QxtLabel|ctkCompleter|WordStartModel')
[ -z "$others" ] || {
    printf 'exported by %s:\n%s\n' "$1" "$others"
    exit 1
}
printf '%s\n' "$symbols" | grep -q 'morvane::compat::QxtLabel::' || {
    echo "$1 exports no label at all"
    exit 1
}
