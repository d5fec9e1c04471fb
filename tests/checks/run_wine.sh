#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Morvane authors
# SPDX-License-Identifier: MIT

# The behaviour of packaging/windows/run-wine, with stand-ins for Wine, Wine's server and the X server: what does not start
# is tried once more, what fails is not, and nothing ends without a word.
# shellcheck disable=SC2016 # the programs expand their variables themselves
set -eu
run_wine=$(pwd)/packaging/windows/run-wine
for tool in flock timeout mkfifo realpath perl; do
    command -v $tool >/dev/null || {
        echo "skipped: $tool is missing"
        exit 77
    }
done
[ -e /proc/self/exe ] || {
    echo 'skipped: there is no /proc'
    exit 77
}

scratch=$(mktemp -d)
trap '"$run_wine" --home "$scratch/home" --stop; xargs rm -f <"$state/sockets"; rm -rf "$scratch"' EXIT
state=$scratch/state
mkdir "$scratch/bin" "$state"
: >"$state/sockets"
export MORVANE_WINE_PLACES=1
PATH=$scratch/bin:$PATH
export PATH state
unset DISPLAY

# stand_in NAME: makes a program of standard input. What it is to do is in $state: there NAME-failures is the number of
# starts that fail from now on, and `deaths` the number of programs with which Wine's server ends.
stand_in() {
    {
        cat <<'TEXT'
#!/bin/sh
# counted NAME: whether one is left of what is counted in the file NAME.
counted() {
    left=$(cat "$state/$1" 2>/dev/null || echo 0)
    [ "$left" -gt 0 ] || return 1
    echo $((left - 1)) >"$state/$1"
}
TEXT
        cat
    } >"$scratch/bin/$1"
    chmod +x "$scratch/bin/$1"
}

stand_in Xvfb <<'TEXT'
if counted Xvfb-failures; then
    echo 'no screen' >&2
    exit 1
fi
echo "/tmp/.X11-unix/X$$" >>"$state/sockets"
exec perl -e '
    use Socket;
    my $path = "/tmp/.X11-unix/X$$";
    mkdir "/tmp/.X11-unix";
    socket(my $server, PF_UNIX, SOCK_STREAM, 0) or die;
    bind($server, sockaddr_un($path)) or die;
    $SIG{TERM} = sub { unlink $path; exit };
    open(my $answer, ">&=", 3) or die;
    print $answer "$$\n";
    close $answer;
    sleep 1 while 1;'
TEXT

stand_in wineserver <<'TEXT'
case $1 in
--kill=0) [ -e "$state/server" ] ;;
--kill | --wait) rm -f "$state/server" ;;
--persistent=*) : >"$state/server" ;;
esac
TEXT

stand_in wine <<'TEXT'
case $1 in
--version) echo "wine-$(cat "$state/version" 2>/dev/null || echo 8.0) (stand-in)" ;;
wineboot)
    mkdir -p "$WINEPREFIX/drive_c/users"
    : >"$WINEPREFIX/system.reg"
    ;;
reg) ;;
cmd)
    if counted wine-failures; then
        echo 'no memory' >&2
        exit 1
    fi
    ;;
*)
    echo "$1" >>"$state/runs"
    if counted deaths; then
        if [ -e "$state/dies-late" ]; then
            echo 'first line'
            { sleep 0.3; rm -f "$state/server"; } >/dev/null 2>&1 &
        else
            rm -f "$state/server"
        fi
        exit 0
    fi
    exec sh "$1"
    ;;
esac
TEXT

failures=0
fail() {
    printf '%s: %s\n' "$case" "$*"
    sed 's/^/    /' "$scratch/errors"
    failures=$((failures + 1))
}

# run CASE SCRIPT [OPTION]...: runs SCRIPT as the Windows program.
run() {
    case=$1
    printf '%s\n' "$2" >"$scratch/program.exe"
    shift 2
    rm -f "$state/runs"
    status=0
    "$run_wine" --home "$scratch/home" "$@" -- "$scratch/program.exe" >"$scratch/output" 2>"$scratch/errors" || status=$?
}

expect_status() { [ "$status" = "$1" ] || fail "status $status instead of $1"; }
expect_runs() {
    runs=0
    [ ! -e "$state/runs" ] || runs=$(wc -l <"$state/runs")
    [ "$runs" = "$1" ] || fail "ran $runs times instead of $1"
}
expect_output() { [ "$(cat "$scratch/output")" = "$1" ] || fail "wrote '$(cat "$scratch/output")' instead of '$1'"; }
expect_told() { grep -q "$1" "$scratch/errors" || fail "does not say '$1'"; }
expect_quiet() { [ ! -s "$scratch/errors" ] || fail 'says something'; }
# fresh_place: the next program finds neither Wine nor an X server running.
fresh_place() { "$run_wine" --home "$scratch/home" --stop; }

run 'a program that succeeds' 'echo one; echo two'
expect_status 0
expect_runs 1
expect_output 'one
two'
expect_quiet

run 'a program that fails' 'echo one; exit 3'
expect_status 3
expect_runs 1
expect_output one
expect_quiet

run 'a program that fails and says so on standard error' 'echo wrong >&2; exit 1'
expect_status 1
expect_runs 1
[ "$(cat "$scratch/errors")" = wrong ] || fail 'standard error is changed'

run 'a program that fails without a word' 'exit 1'
expect_status 1
expect_runs 1
expect_told 'ended with status 1 after .* s and wrote nothing'

run 'a program that succeeds without a word' 'exit 0'
expect_status 0
expect_runs 1
expect_quiet

run 'a program that takes too long' 'echo one; exec sleep 30' --timeout 1
expect_status 124
expect_runs 1

fresh_place
echo 1 >"$state/wine-failures"
run 'Wine starts at the second attempt' 'echo one'
expect_status 0
expect_runs 1
expect_output one
expect_told 'Wine does not start, trying once more: no memory'

fresh_place
echo 2 >"$state/wine-failures"
run 'Wine does not start' 'echo one'
expect_status 125
expect_runs 0
expect_told 'Wine does not start: no memory'

fresh_place
echo 1 >"$state/Xvfb-failures"
run 'the X server starts at the second attempt' 'echo $DISPLAY'
expect_status 0
expect_runs 1
grep -q '^:[0-9]' "$scratch/output" || fail 'there is no display'
expect_told 'the X server does not start, trying once more: no screen'

fresh_place
echo 2 >"$state/Xvfb-failures"
run 'the X server does not start' 'echo one'
expect_status 125
expect_runs 0
expect_told 'the X server does not start: no screen'

echo 1 >"$state/deaths"
run 'Wine ends before the program has written anything' 'echo one'
expect_status 0
expect_runs 2
expect_output one
expect_told 'ended before .* wrote anything, trying once more'

echo 2 >"$state/deaths"
run 'Wine ends twice before the program has written anything' 'echo one'
expect_status 125
expect_runs 2
expect_told "Wine's server ended while .* ran"

: >"$state/dies-late"
echo 1 >"$state/deaths"
run 'Wine ends after the program has written something' 'echo one'
expect_status 125
expect_runs 1
expect_output 'first line'
expect_told "Wine's server ended while .* ran"

ends_display='kill -KILL $(cut -d " " -f 1 '$scratch/home/wine-8.0/1/display'); sleep 0.2'
run 'the X server ends meanwhile' "echo one; $ends_display; exit 4"
expect_status 4
expect_runs 1
expect_told 'the X server ended while .* ran'

run 'the X server ends and the program does not tell' "echo one; $ends_display"
expect_status 125
expect_runs 1
expect_told 'the X server ended while .* ran'

run 'the prefix of this version of Wine' 'echo $WINEPREFIX'
expect_output "$scratch/home/wine-8.0/1/prefix"
fresh_place
echo 10.0 >"$state/version"
run 'another version of Wine has a prefix of its own' 'echo $WINEPREFIX'
expect_status 0
expect_output "$scratch/home/wine-10.0/1/prefix"
[ -e "$scratch/home/wine-8.0/1/prefix" ] || fail 'the other one is gone'

run 'after all that' 'echo one'
expect_status 0
expect_output one
expect_quiet

[ "$failures" = 0 ] || exit 1
echo 'run-wine behaves'
