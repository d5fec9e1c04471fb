#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# Who may include whom, and where platform headers and operating-system conditionals may stand. Runs in the project's
# root.
failed=0
complain() {
    [ -z "$2" ] || {
        printf '%s:\n%s\n' "$1" "$2"
        failed=1
    }
}
src=common/src
sources() { find "$@" \( -name '*.h' -o -name '*.cpp' \) | sort; }

# A line for each folder: the folders and headers that its files may include beside their own folder. A folder stands
# for its own files only, not for those of the folders in it. Each line names what stands above it, so nothing points
# up. The exceptions are headers, named one by one.
rules='
host:
property: host
ui/qt/util: property host ui/qt
ui/qt/controls: ui/qt/util ui/qt ui/qt/compat
ui/qt/dialogs/qtdialog:
ui/qt/dialogs/shell: ui/qt/dialogs/qtdialog ui/qt/util ui/qt host
ui/qt/dialogs/native: ui/qt/dialogs/shell ui/qt/util property host ui/qt/dialogs/FileDialogCustomization.h
ui/qt/dialogs/custom: ui/qt/dialogs/native ui/qt/dialogs/shell
ui/qt/dialogs/save: ui/qt/dialogs/shell ui/qt/util ui/qt host ui/qt/dialogs/SaveFileMessageHandlerInterface.h ui/qt/dialogs/DefaultSaveFileMessageHandler.h
ui/qt/dialogs: ui/qt/dialogs/custom ui/qt/dialogs/native ui/qt/dialogs/save ui/qt/dialogs/shell ui/qt/dialogs/qtdialog ui/qt/util ui/qt property host
testing: ui/qt/dialogs/shell ui/qt/dialogs/save ui/qt/util
'

# Prints the includes that no rule allows, as FILE: HEADER.
forbidden_includes() {
    sources $src | xargs grep -HoE '^ *# *include +("[^"]+"|<(host|property|testing|ui)/[^>]+>)' |
        sed 's/: *# *include *["<]/ /; s/[">]$//' |
        RULES="$rules" awk -v root="$src/" '
            function folder(path) { sub("/[^/]*$", "", path); return path }
            BEGIN {
                count = split(ENVIRON["RULES"], lines, "\n")
                for (i = 1; i <= count; ++i) {
                    if (lines[i] == "") continue
                    name = lines[i]; sub(":.*", "", name); known[name] = 1
                    rest = lines[i]; sub("[^:]*: *", "", rest)
                    words = split(rest, targets, " ")
                    for (k = 1; k <= words; ++k) {
                        allowed[name, targets[k]] = 1
                        earlier = targets[k] in known || targets[k] ~ /[.]h$/ || targets[k] ~ /^ui\/qt(\/compat)?$/
                        if (!earlier) print "the rules: " name " names " targets[k] ", which is not above it"
                    }
                }
            }
            {
                from = folder(substr($1, length(root) + 1)); to = folder($2)
                if (!(from in known)) print $1 ": no rule for its folder"
                else if (from != to && !((from, to) in allowed) && !((from, $2) in allowed)) print $1 ": " $2
            }'
}
conditionals='^ *# *(if|elif|ifdef|ifndef).*(_WIN32|_WIN64|Q_OS_|__linux__|__APPLE__|__unix__)'

complain 'includes that point up' "$(forbidden_includes)"
complain 'the stand-ins include the library' \
    "$(sources compat | xargs grep -nE '^ *# *include +["<](ui/qt/(util|controls|dialogs)|host|property|testing)/')"
complain 'property knows Qt' "$(grep -rnE '^ *# *include +<Q[A-Za-z]+[/>]' $src/property)"
complain 'installed headers include internal ones' \
    "$(sources $src | grep -v '_p\.h$' | grep '\.h$' | xargs grep -nE '^ *# *include +["<].*_p\.h')"
complain 'internal headers without a namespace' \
    "$(find $src -name '*_p.h' | sort | xargs grep -L '^namespace morvane')"
complain 'platform headers outside the one header for them' \
    "$(grep -rnE '^ *# *include +<(windows|shobjidl|shlwapi|objbase|shlobj)' $src | grep -v shell/ShellInterfaces.h)"
complain 'operating-system conditionals outside the platform layer' \
    "$(grep -rnE "$conditionals" $src | grep -vE 'dialogs/shell/|src/host/|save/WriteAccessProbe')"
complain 'the version of Qt is asked for outside QtShims.h' \
    "$(sources $src compat designer examples tests fuzz benchmarks |
        xargs grep -nE '^ *# *(if|elif).*QT_VERSION' | grep -v '/QtShims\.h:')"
complain 'examples and consumers include internal headers' \
    "$(sources examples tests/consumer designer | xargs grep -nE '^ *# *include +[<"].*_p\.h')"
exit $failed
