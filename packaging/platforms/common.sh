# What the scripts of all platforms share: sourced, not run. Each is run from the project's root and
# ends with `print_row`, a row for docs/platforms.md.

readonly work_dir=$PWD/build/platforms

# Ends the run without a failure where this machine lacks what it takes: `skip REASON`.
skip() {
    echo "platform $platform: skipped, $1"
    exit 0
}

# `need COMMAND PACKAGE`: skips the platform unless there is such a command.
need() {
    command -v "$1" >/dev/null || skip "$1 is missing (Debian: apt-get install $2)"
}

need_root() {
    [ "$(id -u)" -eq 0 ] || skip "making a root folder takes root"
}

# The sources as a release's archive has them, without git and without what was built: `copy_sources TO`.
copy_sources() {
    rm -rf "$1"
    mkdir -p "$1"
    if git rev-parse --git-dir >/dev/null 2>&1; then
        git ls-files -z --cached --others --exclude-standard | tar -c --null -T - | tar -x -C "$1"
    else
        tar -c --exclude=./build --exclude=./out . | tar -x -C "$1"
    fi
}

# `count_tests LOG`: "PASSED of ALL" from what ctest told; tests that were skipped do not count.
count_tests() {
    [ -e "$1" ] || { echo "not run"; return; }
    local passed failed
    passed=$(grep -c -E '^ *[0-9]+/[0-9]+ Test .* Passed ' "$1" || true)
    failed=$(grep -c -E '^ *[0-9]+/[0-9]+ Test .*(\*\*\*Failed|\*\*\*Timeout|\*\*\*Exception|Not Run)' "$1" || true)
    echo "$passed of $((passed + failed))"
}

# `count_hashes FILE`: "EQUAL of ALL" results that have the expected bits.
count_hashes() {
    local expected=tests/bits/expected.txt
    local equal
    equal=$(tr -d '\r' <"$1" | grep -c -x -F -f "$expected" || true)
    echo "$equal of $(grep -c . "$expected")"
}

# `print_row SYSTEM TESTS HASHES`
print_row() {
    local row quick=
    [ "${OX_QUICK:-0}" = 0 ] || quick="OX_QUICK=1 "
    row="| $1 | \`$quick./run platform $platform\` | $(date +%F) | $2 | $3 |"
    mkdir -p "$work_dir"
    echo "$row" | tee "$work_dir/$platform.row"
}
