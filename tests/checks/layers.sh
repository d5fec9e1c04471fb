#!/bin/sh
# Who may include whom, and where platform headers and operating-system conditionals may stand.
failed=0
complain() {
    [ -z "$2" ] || {
        printf '%s:\n%s\n' "$1" "$2"
        failed=1
    }
}
src=common/src
includes() { grep -rnE "^ *# *include +[<\"]($1)" "$2" --include='*.h' --include='*.cpp'; }
conditionals='^ *# *(if|elif|ifdef|ifndef).*(_WIN32|_WIN64|Q_OS_|__linux__|__APPLE__|__unix__)'

complain 'host includes a higher layer' "$(includes '(property|ui)/' $src/host | grep -v MorvaneHostExport)"
complain 'property includes more than host' "$(includes '(ui/|Q[A-Z])' $src/property)"
for layer in util controls; do
    [ -d $src/ui/qt/$layer ] || continue
    complain "$layer includes dialogs" "$(includes 'ui/qt/dialogs/' $src/ui/qt/$layer)"
done
complain 'the platform layer includes dialogs' \
    "$(includes 'ui/qt/dialogs/[A-Z]' $src/ui/qt/dialogs/shell)"
complain 'platform headers outside the one header for them' \
    "$(includes '(windows|shobjidl|shlwapi|objbase|shlobj)' $src | grep -v shell/ShellInterfaces.h)"
complain 'operating-system conditionals outside the platform layer' \
    "$(grep -rnE "$conditionals" $src | grep -vE 'dialogs/shell/|src/host/|WriteAccessProbe')"
complain 'examples and consumers include private headers' \
    "$(grep -rnE '#include "(ui/qt/dialogs/shell|ui/qt/dialogs/.*(Impl|Private))' examples tests/consumer)"
exit $failed
