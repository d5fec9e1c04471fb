# The command "./dev docs": the reference pages and the guides. Sourced by ./dev, whose functions it uses: need, step, die,
# build.

docs_packages='doxygen'

cmd_docs() {
    # shellcheck disable=SC2086 # the lists are to be split
    need $build_packages $docs_packages
    build dev morvane-docs
    rm -rf build/docs
    cp -R build/dev/docs/html build/docs
    step "the pages start at $(pwd)/build/docs/index.html"
}
