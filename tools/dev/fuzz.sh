# The command "./dev fuzz": the fuzzing harnesses, each for some time. Sourced by ./dev, whose functions it uses: need,
# step, die, build.

fuzz_usage() {
    cat <<'TEXT'
usage: ./dev fuzz [SECONDS [HARNESS...]]

Runs each harness, or the ones that are named, for SECONDS (60). Inputs that reach something new are kept in
build/fuzz/work and are the start of the next run. An input that makes trouble is kept there too: put it into
fuzz/corpus/HARNESS once the fault is mended, and ./dev test will try it every time.
TEXT
}

cmd_fuzz() {
    case ${1:-} in
    -h | --help)
        fuzz_usage
        return
        ;;
    *[!0-9]*) die "not a number of seconds: $1" ;;
    esac
    seconds=${1:-60}
    [ $# -eq 0 ] || shift
    # shellcheck disable=SC2086
    need $build_packages $run_packages $fuzz_packages
    build fuzz
    step "fuzzing, $seconds seconds a harness"
    fuzz/run-all build/fuzz build/fuzz/work "$seconds" "$@" || die 'an input made trouble; see build/fuzz/work'
}
